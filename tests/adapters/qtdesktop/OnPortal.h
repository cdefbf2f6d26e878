#pragma once

#include "adapters/qtdesktop/StandInPortal.h"
#include "processes/PrivateSession.h"

#include <gtest/gtest.h>

#include <memory>

namespace tessivo {

/// A fixture that takes a bus, on a bus of the test's own with a portal on it.
template <class Fixture>
class OnPortal : public Fixture {
protected:
    OnPortal() : Fixture(QDBusConnection::connectToBus(address(), name())), portal(address()) {}
    ~OnPortal() override { QDBusConnection::disconnectFromBus(name()); }

    static void SetUpTestSuite() {
        if (!PrivateSession::isPossible())
            GTEST_SKIP() << "This machine has no programs for a session of the test's own.";
        session = std::make_unique<PrivateSession>();
    }
    static void TearDownTestSuite() { session.reset(); }

    static inline std::unique_ptr<PrivateSession> session;
    StandInPortal portal;

private:
    static QString address() { return qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"); }
    static QString name() { return QStringLiteral("portal of the test"); }
};

} // namespace tessivo
