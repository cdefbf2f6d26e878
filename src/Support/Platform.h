#pragma once

namespace tessivo {

class Calendar;
class Clock;
class Console;
class DateFormatters;
class EventStore;
class LocalizedTexts;
class MainQueue;
class NamedColors;
class NotificationCenter;
class SavedSettings;
class TextCounting;
class Timers;
class UuidSource;

/// What the machine gives the program. All of it outlives the program's objects.
struct Platform {
    Console& console;
    Clock& clock;
    Timers& timers;
    MainQueue& mainQueue;
    Calendar& calendar;
    DateFormatters& dateFormatters;
    TextCounting& textCounting;
    NamedColors& colors;
    LocalizedTexts& texts;
    SavedSettings& settings;
    UuidSource& uuids;
    EventStore& eventStore;
    NotificationCenter& notificationCenter;
};

} // namespace tessivo
