#include "window/live_telemetry.h"

#include <QLabel>
#include <QStackedWidget>

namespace live {

namespace {

constexpr const char* kNumber = "label_Event_NumPage_Value";

QWidget* form()
{
    return window()->findChild<QStackedWidget*>(QStringLiteral("stackedWidget"))->currentWidget();
}

} // namespace

void open(workbench::Tour& tour)
{
    const QString failure = tour.window().session().liveTelemetry();
    workbench::Tour::expect(failure.isEmpty(), failure);
    tour.waitFor(
        [] { return workbench::Tour::findVisible(kNumber) && page() != QLatin1String("page_Empty"); },
        QStringLiteral("a record in the telemetry window"));
}

void close(workbench::Tour& tour)
{
    tour.window().session().link().send(vlk::Message::CloseWindows);
    tour.waitFor([] { return !workbench::Tour::findVisible(kNumber); },
                 QStringLiteral("the end of the window"));
}

QWidget* window()
{
    return workbench::Tour::find<QLabel>(kNumber)->window();
}

QString number()
{
    return textOf(kNumber);
}

QString textOf(const char* label)
{
    const QString name = QLatin1String(label);
    const auto* found = form()->findChild<QLabel*>(name);
    if (found == nullptr)
        found = window()->findChild<QLabel*>(name);
    workbench::Tour::expect(found != nullptr, QStringLiteral("no label named %1").arg(name));
    return found->text();
}

QString page()
{
    return form()->objectName();
}

void ask(workbench::Tour& tour, const char* button)
{
    const auto onShow = [] { return page() + number(); };
    const QString before = onShow();
    workbench::Tour::press(button);
    tour.waitFor([&] { return onShow() != before; },
                 QStringLiteral("the record of %1").arg(QLatin1String(button)));
}

void showFunctions()
{
    if (!workbench::Tour::findVisible("frame_Btn_Func"))
        workbench::Tour::press("pushButton_Func");
}

} // namespace live
