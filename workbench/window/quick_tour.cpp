#include "window/quick_tour.h"

#include "window/languages.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QRadioButton>
#include <QSpinBox>

namespace workbench {

namespace {

constexpr int kPort = 7001;

void openQuickWindow(Tour& tour)
{
    Tour::expectOpened(tour.window().session().readConfiguration(false));
    tour.waitFor([] { return Tour::findVisible("radioButton_Track_Econom"); },
                 QStringLiteral("the quick window"));
}

void editQuick(Tour& tour)
{
    // A change of language starts the lists anew, so it comes first.
    for (const QString& code : Languages::codes()) {
        tour.window().setLanguage(code);
        tour.picture(QStringLiteral("quick-%1.png").arg(code),
                     Tour::find<QRadioButton>("radioButton_Track_Econom")->window());
    }
    Tour::type(Tour::find<QSpinBox>("GPRSSrv_spinBox_Port_Main"), QString::number(kPort), Qt::Key_Tab);
    Tour::press("radioButton_Track_Full");
    Tour::find<QComboBox>("comboBox_NormState_In_1")->setCurrentIndex(3);
    Tour::find<QCheckBox>("checkBox_Fuel_RS485_Use")->setChecked(true);
    Tour::find<QCheckBox>("checkBox_Fuel_RS485_Use_1")->setChecked(true);
    Tour::press("pushButton_Wnd_Help_Track");
    tour.waitFor([] { return Tour::findVisible("textEdit"); }, QStringLiteral("the help text"));
    QWidget* text = Tour::findVisible("textEdit")->window();
    tour.picture(QStringLiteral("quick-help.png"), text);
    text->close();
}

void saveQuick(Tour& tour)
{
    const QString path = tour.folder().absoluteFilePath(QStringLiteral("quick.xml"));
    tour.whenModal<QFileDialog>([path](QFileDialog& dialog) { Tour::giveName(dialog, path); });
    Tour::press("pushButton_Light_SaveToFile");
    QFile file(path);
    Tour::expect(file.open(QIODevice::ReadOnly), file.errorString());
    const QByteArray content = file.readAll();
    const QByteArray port = QByteArray("port=\"") + QByteArray::number(kPort) + '"';
    for (const QByteArray& wanted : {port, QByteArray("moveTimer=\"20\""), QByteArray("normState=\"NB+\""),
                                     QByteArray("owner1=\"FLDS\""), QByteArray("<FS1 use=\"1\"")})
        Tour::expect(content.contains(wanted),
                     QStringLiteral("no %1 in %2").arg(QString::fromLatin1(wanted), path));
}

void switchToFull(Tour& tour)
{
    Tour::press("pushButton_Light_ConfigFull");
    tour.waitFor([] { return Tour::findVisible("lineEdit_Name"); }, QStringLiteral("the full window"));
    Tour::expect(Tour::find<QSpinBox>("GPRSSrv_spinBox_Port_Main")->value() == kPort,
                 QStringLiteral("the full window did not take the port over"));
    tour.window().session().link().send(Message::CloseWindows);
    tour.waitFor([] { return !Tour::findVisible("lineEdit_Name"); }, QStringLiteral("the end of the window"));
}

} // namespace

std::vector<Tour::Step> quickTour()
{
    return {
        {QStringLiteral("open the quick window"), openQuickWindow},
        {QStringLiteral("edit what it shows"), editQuick},
        {QStringLiteral("save it to a file"), saveQuick},
        {QStringLiteral("carry it over into the full window"), switchToFull},
    };
}

} // namespace workbench
