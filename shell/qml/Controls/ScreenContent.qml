import QtQuick
import Tessivo

// Finds the drawing of a screen by its name. A frame around a screen is drawn by what it holds.
FocusScope {
    id: content

    required property ScreenItem screen
    readonly property ScreenItem shown: screen instanceof NavigationItem ? (screen as NavigationItem).content : screen

    focus: true
    Loader {
        anchors.fill: parent
        focus: true
        sourceComponent: {
            switch (content.shown.name) {
            case "CustomTabBarController": return tabs;
            case "MainViewController": return list;
            case "EventTitleViewController": return titleStep;
            case "EventDateAndTimeViewController": return dateStep;
            case "ReminderViewController": return reminderStep;
            case "EventBackgroundViewController": return backgroundStep;
            case "TableViewController": return valuePicker;
            case "NotificationSettingsController": return notificationSettings;
            case "ActivityViewController": return shareSheet;
            case "UnsplashPickerViewController": return photos;
            case "UnsplashPickerPreviewViewController": return photoPreview;
            default:
                console.warn("There is no drawing for " + content.shown.name);
                return null;
            }
        }
    }

    Component { id: tabs; CustomTabBarController { screen: content.screen as TabsItem } }
    Component { id: list; MainViewController { screen: content.screen } }
    Component { id: titleStep; EventTitleViewController { screen: content.screen } }
    Component { id: dateStep; EventDateAndTimeViewController { screen: content.screen } }
    Component { id: reminderStep; ReminderViewController { screen: content.screen } }
    Component { id: backgroundStep; EventBackgroundViewController { screen: content.screen } }
    Component { id: valuePicker; TableViewController { screen: content.screen } }
    Component { id: notificationSettings; NotificationSettingsController { screen: content.screen } }
    Component { id: photos; UnsplashPickerViewController { screen: content.shown } }
    Component { id: photoPreview; UnsplashPickerPreviewViewController { screen: content.shown } }
    Component { id: shareSheet; ShareSheet { screen: content.screen } }
}
