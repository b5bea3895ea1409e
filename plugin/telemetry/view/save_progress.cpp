#include "telemetry/view/save_progress.h"

#include "ui_VLK_Designer_Widget_Tmi_View.h"

#include "base/clock.h"
#include "typing/progress_look.h"

#include <chrono>
#include <limits>

namespace {

constexpr auto kPatience = std::chrono::seconds(3);

// "hh:mm:ss", with more hours than a day has where it takes them.
QString timeText(qint64 seconds)
{
    const auto twoDigits = [](qint64 number) {
        return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
    };
    return twoDigits(seconds / 3600) + QLatin1Char(':') + twoDigits(seconds / 60 % 60) + QLatin1Char(':') +
           twoDigits(seconds % 60);
}

} // namespace

SaveProgress::SaveProgress(const Ui::VLK_Designer_Widget_Tmi_View& ui) : ui_(ui)
{
    silence_.setSingleShot(true);
    silence_.setInterval(kPatience);
    QObject::connect(&silence_, &QTimer::timeout, &silence_, [this] { showSilence(true); });
}

void SaveProgress::clear()
{
    stopWaiting();
    statusKey_ = nullptr;
    for (QLabel* label : ui_.frame_Progress->findChildren<QLabel*>())
        label->clear();
    resetBar();
    ui_.progressBar_Time->hide();
    ui_.pushButton_Save_Cancel->hide();
}

void SaveProgress::setStatus(const char* key)
{
    statusKey_ = key;
    retranslate();
    ui_.label_ProgressBar_Time->repaint();
}

void SaveProgress::start(quint32 total)
{
    constexpr quint32 kLongest = std::numeric_limits<int>::max();
    ui_.progressBar_Time->setRange(0, static_cast<int>(std::min(total, kLongest)));
    resetBar();
    ui_.progressBar_Time->show();
    QPushButton* cancel = ui_.pushButton_Save_Cancel;
    cancel->show();
    if (cancel->window()->focusWidget() == cancel->window())
        cancel->setFocus();
    ui_.label_Packet_Separator->setText(QStringLiteral("/"));
    ui_.label_Time_Separator->setText(QStringLiteral("/"));
    wait();
}

void SaveProgress::wait()
{
    heard_ = vlk::now();
    silence_.start();
    if (isSilent_)
        showSilence(false);
}

void SaveProgress::stopWaiting()
{
    silence_.stop();
    if (isSilent_)
        showSilence(false);
}

void SaveProgress::showSilence(bool silent)
{
    isSilent_ = silent;
    vlk::showAsSilent(ui_.progressBar_Time, silent);
    retranslate();
}

void SaveProgress::moveBar()
{
    wait();
    ui_.progressBar_Time->setValue(ui_.progressBar_Time->value() + 1);
}

void SaveProgress::resetBar()
{
    ui_.progressBar_Time->setValue(ui_.progressBar_Time->minimum());
}

void SaveProgress::setFetched(quint32 done, quint32 total, qint64 seconds)
{
    const qint64 estimate = seconds * total / done;
    ui_.label_Packet_Cur->setText(QString::number(done));
    ui_.label_Packet_End->setText(QString::number(total));
    ui_.label_Time_Cur->setText(timeText(seconds));
    ui_.label_Time_End->setText(timeText(std::max<qint64>(estimate - seconds, 0)));
}

void SaveProgress::retranslate()
{
    if (statusKey_)
        ui_.label_ProgressBar_Time->setText(QCoreApplication::translate("vlk", statusKey_));
    ui_.progressBar_Time->setFormat(
        isSilent_
            ? QCoreApplication::translate("vlk", "tmiw_290").arg(heard_.toString(QStringLiteral("HH:mm:ss")))
            : QStringLiteral("%p%"));
}
