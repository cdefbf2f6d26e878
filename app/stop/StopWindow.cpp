#include "app/stop/StopWindow.h"

#include "Support/FilledText.h"
#include "icu/DeviceLocale.h"

#include <utility>

namespace tessivo {

StopWindow::StopWindow(Setting setting, const std::string& cause, const LocalizedTexts& texts)
    : setting_(std::move(setting)), texts_(texts) {
    const StopReport report =
        makeStopReport(setting_.dataFolder, setting_.datesLocale, setting_.language, texts);
    heading_ = QString::fromStdString(texts.localizedString("stop.heading"));
    cause_ = QString::fromStdString(cause);
    file_ = QString::fromStdString(report.file);
    advice_ = QString::fromStdString(report.advice);
    if (!report.datesLocale.empty())
        add(filledText(texts.localizedString("stop.startIn"),
                       localeDisplayName(report.datesLocale, setting_.language)),
            [this, locale = report.datesLocale] { setting_.startProgram(locale); });
    if (report.canRewriteDates)
        add(texts.localizedString("stop.rewriteDates"), [this] { rewrite(); });
    add(texts.localizedString("stop.showFolder"),
        [this] { setting_.showFolder(QString::fromStdString(setting_.dataFolder.string())); });
    add(texts.localizedString("close"), setting_.close);
}

void StopWindow::act(int index) {
    if (index >= 0 && index < static_cast<int>(acts_.size()))
        acts_[static_cast<std::size_t>(index)]();
}

void StopWindow::add(const std::string& name, std::function<void()> act) {
    actNames_.append(QString::fromStdString(name));
    acts_.push_back(std::move(act));
}

void StopWindow::rewrite() {
    const auto failure = rewriteDates(setting_.dataFolder, setting_.datesLocale);
    if (!failure)
        return setting_.startProgram(std::nullopt);
    advice_ = QString::fromStdString(filledText(texts_.localizedString("stop.rewritingFailed"), *failure));
    Q_EMIT adviceChanged();
}

} // namespace tessivo
