#pragma once

#include "app/stop/StopReport.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace tessivo {

/// What the window of a stopped program shows and does.
class StopWindow final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString heading MEMBER heading_ CONSTANT FINAL)
    Q_PROPERTY(QString cause MEMBER cause_ CONSTANT FINAL)
    Q_PROPERTY(QString file MEMBER file_ CONSTANT FINAL)
    Q_PROPERTY(QString advice MEMBER advice_ NOTIFY adviceChanged FINAL)
    Q_PROPERTY(QStringList acts MEMBER actNames_ CONSTANT FINAL)

public:
    struct Setting {
        std::filesystem::path dataFolder;
        std::string datesLocale; ///< the present one, as an ICU name
        std::string language;    ///< of the texts
        /// Goes on as Tessivo, in that locale or in the present one.
        std::function<void(const std::optional<std::string>& locale)> startProgram;
        std::function<void(const QString& folder)> showFolder;
        std::function<void()> close;
    };

    StopWindow(Setting setting, const std::string& cause, const LocalizedTexts& texts);

    /// Carries out the act of that place in `acts`, the last of which closes the window.
    Q_INVOKABLE void act(int index);

Q_SIGNALS:
    void adviceChanged();

private:
    void add(const std::string& name, std::function<void()> act);
    void rewrite();

    Setting setting_;
    const LocalizedTexts& texts_;
    QString heading_;
    QString cause_;
    QString file_;
    QString advice_;
    QStringList actNames_;
    std::vector<std::function<void()>> acts_;
};

/// Whether there is a desktop to show a window on, which Qt would otherwise abort for.
[[nodiscard]] bool hasDisplay();

/// Replaces the process by one that shows the window. It depends on nothing that the failed program has
/// loaded or opened. Returns only if that fails.
void becomeStopWindow(const std::string& cause);

/// Whether the process was started as such a window.
[[nodiscard]] bool isStopWindow(int argc, char** argv);

/// Shows the window until it is closed, and gives the process's exit code. Where nobody could see a window,
/// it ends at once.
[[nodiscard]] int runStopWindow(int argc, char** argv);

} // namespace tessivo
