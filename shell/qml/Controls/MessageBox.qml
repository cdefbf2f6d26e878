import QtQuick
import Tessivo

// A text of several lines that the user edits.
FocusScope {
    id: control

    required property TextInputItem input

    implicitHeight: Math.max(112, field.implicitHeight + 2 * input.verticalInset)
    visible: input.shown

    Rectangle {
        anchors.fill: parent
        radius: control.input.cornerRadius
        color: control.input.fill.color
        border.color: field.activeFocus ? Theme.accent : "transparent"
        border.width: 1.5
    }
    TextEdit {
        id: field
        anchors.fill: parent
        anchors.leftMargin: control.input.horizontalInset
        anchors.rightMargin: control.input.horizontalInset
        anchors.topMargin: control.input.verticalInset
        anchors.bottomMargin: control.input.verticalInset
        activeFocusOnTab: true
        wrapMode: TextEdit.Wrap
        horizontalAlignment: TextEdit.AlignLeft
        clip: true
        selectByMouse: true
        textFormat: TextEdit.PlainText
        font.pixelSize: Theme.type(control.input.size)
        color: control.input.color
        selectionColor: Theme.accent
        onTextChanged: if (activeFocus) control.input.edit(text)
        onActiveFocusChanged: activeFocus ? control.input?.beginEditing() : control.input?.endEditing()
        KeyNavigation.priority: KeyNavigation.BeforeItem
        Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
        Accessible.role: Accessible.EditableText
        Accessible.name: control.input.accessibleName
        Accessible.multiLine: true
    }
    Connections {
        target: control.input
        function onRefused() {
            const place = field.cursorPosition - (field.text.length - control.input.text.length);
            field.text = control.input.text;
            field.cursorPosition = Math.max(0, Math.min(place, field.text.length));
        }
        function onContentChanged() {
            if (field.text !== control.input.text)
                field.text = control.input.text;
        }
        function onKeyboardDismissed() {
            if (field.activeFocus)
                field.focus = false;
        }
    }
    Component.onCompleted: {
        field.text = input.text;
        if (field.activeFocus) // it got the focus before the input was set
            input.beginEditing();
    }
}
