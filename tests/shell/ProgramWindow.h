#pragma once

#include "DemoPhotos.h"
#include "Event/EventContext.h"
#include "Event/EventItem.h"
#include "Interface/CollectionView.h"
#include "Ports/Clock.h"
#include "app/Composition.h"
#include "fakes/RecordingConsole.h"
#include "hand/Hand.h"
#include "sqlite/SqliteNotificationQueue.h"
#include "support/TemporaryFolder.h"

#include <QString>

#include <memory>
#include <string>

namespace tessivo {

/// The whole program in its window, on a folder of its own, on 21 June 2030, 10:30:15 in Berlin. The first
/// run is over, and the list of what lies ahead comes first.
class ProgramWindow {
public:
    ProgramWindow();
    ~ProgramWindow();

    /// Stores an event without the program; before it starts.
    void store(EventRecord event);

    /// Ends the program, if it runs, and starts it on the same folder; ends on its first screen.
    void start();
    void stop();

    /// Until nothing moves any more and no thread has anything left to do.
    void settle();

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// What a screen reader says of the control that has the keyboard.
    [[nodiscard]] static QString focused();
    /// Tabs to the control of that name.
    void reach(const std::string& name);

    [[nodiscard]] QQuickWindow& window() const { return *program->shell().window(); }
    /// The list in front.
    [[nodiscard]] ui::CollectionView& cards() const;

    /// Stands still.
    class StillClock final : public Clock {
    public:
        Instant now() const override { return instantAt(1908261015); }
    };

    TemporaryFolder folder;
    StillClock clock;
    fakes::RecordingConsole console;
    DemoPhotos photos;
    sqlite::SqliteNotificationQueue queue{folder.path() / "reminders.sqlite", console};
    std::unique_ptr<Composition> program;
    std::unique_ptr<Hand> hand;
};

} // namespace tessivo
