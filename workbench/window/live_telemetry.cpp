#include "window/live_telemetry.h"

#include <QLabel>
#include <QStackedWidget>

namespace workbench::live {

namespace {

constexpr const char* kNumber = "label_Event_NumPage_Value";

QWidget* form()
{
    return window()->findChild<QStackedWidget*>(QStringLiteral("stackedWidget"))->currentWidget();
}

} // namespace

void open(Tour& tour)
{
    Tour::expectOpened(tour.window().session().liveTelemetry());
    tour.waitFor([] { return Tour::findVisible(kNumber) && page() != QLatin1String("page_Empty"); },
                 QStringLiteral("a record in the telemetry window"));
}

void close(Tour& tour)
{
    tour.window().session().link().send(vlk::Message::CloseWindows);
    tour.waitFor([] { return !Tour::findVisible(kNumber); }, QStringLiteral("the end of the window"));
}

QWidget* window()
{
    return Tour::find<QLabel>(kNumber)->window();
}

QString number()
{
    return textOf(kNumber);
}

QString textOf(const char* label)
{
    const QString name = QLatin1String(label);
    const auto* found = form()->findChild<QLabel*>(name);
    if (!found)
        found = window()->findChild<QLabel*>(name);
    Tour::expect(found, QStringLiteral("no label named %1").arg(name));
    return found->text();
}

QString page()
{
    return form()->objectName();
}

void ask(Tour& tour, const char* button)
{
    const auto onShow = [] { return page() + number(); };
    const QString before = onShow();
    Tour::press(button);
    tour.waitFor([&] { return onShow() != before; },
                 QStringLiteral("the record of %1").arg(QLatin1String(button)));
}

void showFunctions()
{
    if (!Tour::findVisible("frame_Btn_Func"))
        Tour::press("pushButton_Func");
}

} // namespace workbench::live
