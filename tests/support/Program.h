#pragma once

#include "Interface/PresentationStack.h"
#include "Support/RemoteSwitches/RemoteConfig.h"
#include "Support/SharedServices.h"
#include "fakes/CannedSnapshots.h"
#include "fakes/CountingUuids.h"
#include "fakes/FakeNotificationCenter.h"
#include "fakes/FolderResources.h"
#include "fakes/MemoryResponseCaches.h"
#include "fakes/PostedWorkQueue.h"
#include "fakes/RecordingConsole.h"
#include "fakes/RecordingLinkOpener.h"
#include "fakes/RecordingPictureSharing.h"
#include "fakes/RecordingTextSharing.h"
#include "fakes/ScriptedHttpClient.h"
#include "fakes/ScriptedPhotoLibrary.h"
#include "fakes/StandInDevice.h"
#include "fakes/Timeline.h"
#include "support/Resources.h"
#include "support/TemporaryFolder.h"

#include <memory>

namespace tessivo {

/// The whole program without a window: its real store, settings, dates, colours and texts in a folder of the
/// test's own, on virtual time. A test drives the screens as a user does, through their controls.
class Program {
    /// The ports' real parts, which need libraries.
    struct RealParts;
    /// What lasts from one start of the program to its end.
    struct Run;

public:
    /// Whether the tour of the first run is over.
    enum class Launch { First, Later };

    /// Starts on 21 June 2030, 10:30:15 in Berlin, in English.
    explicit Program(Launch launch = Launch::Later);

    /// The same with a notification center of the test's, which must outlive the program.
    explicit Program(NotificationCenter& center, Launch launch = Launch::Later);
    ~Program();

    /// Ends the program and starts it anew on the same folder.
    void restart();

    /// The top screen, which must be of that kind.
    template <class Kind>
    [[nodiscard]] Kind& top() {
        return dynamic_cast<Kind&>(*stack().top());
    }
    [[nodiscard]] ui::PresentationStack& stack();
    [[nodiscard]] SharedServices& services();

    /// Lets a slide between screens come to its end.
    void settle() { timeline.advance(Seconds(0.5)); }

    TemporaryFolder folder;
    fakes::Timeline timeline{instantAt(1908261015)}; // 2030-06-21 10:30:15 +02:00
    fakes::RecordingConsole console;
    fakes::FakeNotificationCenter notifications;
    fakes::ScriptedHttpClient http;
    fakes::MemoryResponseCaches responseCaches;
    fakes::RecordingLinkOpener links;
    fakes::CannedSnapshots snapshots{timeline};
    fakes::RecordingPictureSharing pictureSharing;
    fakes::ScriptedPhotoLibrary photoLibrary;
    fakes::FolderResources resources{resourcesFolder()};
    fakes::RecordingTextSharing textSharing;
    fakes::RecordingMail mail;
    fakes::StandInReachability network;
    fakes::RecordingReviews reviews;
    fakes::StandInPushService remoteNotifications;
    fakes::StandInDevice device;
    RemoteProject remoteProject; ///< none: nothing is fetched; read at the next start
    ui::MainScreen screen{{390, 844}};

private:
    std::unique_ptr<RealParts> realParts_;
    NotificationCenter& center_;
    fakes::PostedWorkQueue background_{timeline};
    fakes::CountingUuids uuids_;
    std::unique_ptr<Run> run_;

public:
    ImageCoding& images;
    DocumentFiles& documents;
    DateFormatters& dateFormatters;
};

} // namespace tessivo
