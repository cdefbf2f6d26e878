#pragma once

namespace tessivo {

class Calendar;
class Clock;
class Console;
class DateFormatters;
class Device;
class DocumentFiles;
class EventStore;
class HttpClient;
class ImageCoding;
class JsonCoding;
class LinkOpener;
class LocalizedTexts;
class MailComposing;
class MainQueue;
class NamedColors;
class NetworkReachability;
class NotificationCenter;
class PhotoLibrary;
class PictureSharing;
class RemoteNotifications;
class ResourceFiles;
class ResponseCaches;
class ReviewRequests;
class SavedSettings;
class TextCounting;
class TextMeasuring;
class TextSharing;
class Timers;
class UuidSource;
class WorkQueue;
struct Bundle;
struct RemoteProject;

namespace ui {
class ViewSnapshots;
}

/// What the machine gives the program. All of it outlives the program's objects.
struct Platform {
    Console& console;
    Clock& clock;
    Timers& timers;
    MainQueue& mainQueue;
    Calendar& calendar;
    DateFormatters& dateFormatters;
    TextCounting& textCounting;
    TextMeasuring& textMeasuring;
    NamedColors& colors;
    LocalizedTexts& texts;
    SavedSettings& settings;
    UuidSource& uuids;
    EventStore& eventStore;
    NotificationCenter& notificationCenter;
    RemoteNotifications& remoteNotifications;
    HttpClient& http;
    WorkQueue& background;
    JsonCoding& json;
    ImageCoding& images;
    ResponseCaches& responseCaches;
    DocumentFiles& documentFiles;
    LinkOpener& links;
    ui::ViewSnapshots& snapshots;
    PictureSharing& pictureSharing;
    PhotoLibrary& photoLibrary;
    TextSharing& textSharing;
    MailComposing& mail;
    NetworkReachability& network;
    ReviewRequests& reviews;
    const Device& device;
    const Bundle& bundle;
    const RemoteProject& remoteProject;
    const LocalizedTexts* photoTexts; ///< the photo browser's own; null where they were not found
    const ResourceFiles& resources;
};

} // namespace tessivo
