import QtQuick
import Tessivo

// A text of one line that the user edits. The program sees each change after it is made and may take it back.
FocusScope {
    id: control

    required property TextInputItem input
    property bool focusAtStart: false
    property real nearRoom: input.horizontalInset // before and after the text
    property real farRoom: input.horizontalInset
    property int enterKey: Qt.EnterKeyDefault
    property alias inputMethodHints: field.inputMethodHints

    implicitHeight: Math.max(56, field.implicitHeight + 2 * input.verticalInset)
    focus: focusAtStart

    Rectangle {
        anchors.fill: parent
        radius: control.input.cornerRadius
        color: control.input.fill.color
        border.color: field.activeFocus ? Theme.accent : "transparent"
        border.width: 1.5
    }
    TextInput {
        id: field
        anchors.fill: parent
        anchors.leftMargin: control.nearRoom
        anchors.rightMargin: control.farRoom
        focus: true
        activeFocusOnTab: true
        verticalAlignment: TextInput.AlignVCenter
        horizontalAlignment: TextInput.AlignLeft
        clip: true
        selectByMouse: true
        font.pixelSize: Theme.type(control.input.size)
        color: control.input.color
        selectionColor: Theme.accent
        EnterKey.type: control.enterKey
        onTextEdited: control.input.edit(text)
        onAccepted: {
            const next = nextItemInFocusChain(true);
            control.input.pressReturn();
            if (!activeFocus && next) // the program has put the keyboard away: on to what comes next
                next.forceActiveFocus(Qt.TabFocusReason);
        }
        onActiveFocusChanged: activeFocus ? control.input?.beginEditing() : control.input?.endEditing()
        Accessible.role: Accessible.EditableText
        Accessible.name: control.input.accessibleName
    }
    Text {
        anchors.fill: field
        visible: field.text.length === 0 && field.preeditText.length === 0
        text: control.input.placeholder
        font: field.font
        color: Theme.muted
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 13
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        Accessible.ignored: true
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
