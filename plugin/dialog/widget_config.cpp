#include "dialog/widget_config.h"

#include "ui_VLK_Designer_Widget_Config.h"

#include "dialog/file_names.h"
#include "dialog/widget_config_full.h"
#include "dialog/widget_config_light.h"
#include "link/device.h"
#include "link/requests.h"
#include "typing/kept_palette.h"
#include "windows/fit_to_screen.h"
#include "xml/xml_document.h"

#include <QFileInfo>

VLK_Widget_Config::VLK_Widget_Config(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint),
      ui_(std::make_unique<Ui::VLK_Designer_Widget_Config>())
{
    ui_->setupUi(this);
    setWindowModality(Qt::ApplicationModal);
    vlk::keepLeastSize(this, {1024, 600});
    vlk::keepPalette(this, vlk::withReadableDisabledText);
    lightWindow_ = new VLK_Widget_Config_Light(this);
    fullWindow_ = new VLK_Widget_Config_Full(this);
    ui_->gridLayout_Light->addWidget(lightWindow_);
    ui_->gridLayout_Full->addWidget(fullWindow_);
    connect(lightWindow_, &VLK_Widget_Config_Light::closeRequested, this, &QDialog::close);
    connect(lightWindow_, &VLK_Widget_Config_Light::writeRequested, this,
            &VLK_Widget_Config::writeQuickToDevice);
    connect(lightWindow_, &VLK_Widget_Config_Light::saveRequested, this, &VLK_Widget_Config::saveQuickToFile);
    connect(lightWindow_, &VLK_Widget_Config_Light::fullRequested, this, &VLK_Widget_Config::switchToFull);
    connect(fullWindow_, &VLK_Widget_Config_Full::closeRequested, this, &QDialog::close);
    connect(fullWindow_, &VLK_Widget_Config_Full::quickRequested, this, &VLK_Widget_Config::switchToQuick);
    retranslate();
}

VLK_Widget_Config::~VLK_Widget_Config() = default;

void VLK_Widget_Config::open(const vlk::OpenRequest& request, char* ussdBuffer)
{
    lightWindow_->setDefaults();
    fullWindow_->setDefaults();
    const QString path = QString::fromLocal8Bit(static_cast<const char*>(request.path));
    QString title = vlkDevice ? vlkDevice->model() : QString();
    if (path.isEmpty()) {
        title += QStringLiteral(": New");
    } else {
        fullWindow_->loadFile(path, ussdBuffer);
        title += request.fromFile == 1 ? QStringLiteral(": %1").arg(QFileInfo(path).fileName())
                                       : QStringLiteral(": Device");
    }
    setWindowTitle(title);
    const bool isFull = request.showFull == 1;
    if (!isFull && !path.isEmpty())
        lightWindow_->loadFile(path);
    ui_->stackedWidget->setCurrentWidget(isFull ? ui_->page_Full : ui_->page_Light);
    vlk::fitToScreen(this);
    show();
    if (isFull)
        fullWindow_->focusFirstField();
    else
        lightWindow_->focusFirstField();
}

void VLK_Widget_Config::deviceConnected()
{
    lightWindow_->deviceConnected();
    fullWindow_->deviceConnected();
}

void VLK_Widget_Config::deviceDisconnected()
{
    lightWindow_->deviceDisconnected();
    fullWindow_->deviceDisconnected();
}

void VLK_Widget_Config::writeQuickToDevice()
{
    if (!vlkDevice)
        return;
    const QString path = vlk::configurationPathToWrite(vlkDevice->model());
    if (saveQuickToFile(path))
        vlk::requests::writeConfiguration(path);
}

bool VLK_Widget_Config::saveQuickToFile(const QString& path)
{
    vlk::XmlDocument document(QString(), QStringLiteral("DEVICE"));
    saveToXml(document.root());
    // The full window has news of its own; what the quick window decided may have mended them.
    lightWindow_->logNews();
    return document.saveAs(path);
}

void VLK_Widget_Config::saveToXml(CXmlSection* root)
{
    fullWindow_->saveToXml(root);
    lightWindow_->saveToXml(root);
}

void VLK_Widget_Config::switchToFull()
{
    vlk::XmlDocument state(QString(), QStringLiteral("DEVICE"));
    saveToXml(state.root());
    state.root()->commit();
    char unusedUssd[vlk::balanceUssdSize] = {};
    fullWindow_->loadFromXml(state.root(), unusedUssd);
    ui_->stackedWidget->setCurrentWidget(ui_->page_Full);
}

void VLK_Widget_Config::switchToQuick()
{
    vlk::XmlDocument state(QString(), QStringLiteral("DEVICE"));
    fullWindow_->saveToXml(state.root());
    state.root()->commit();
    lightWindow_->loadFromXml(state.root());
    ui_->stackedWidget->setCurrentWidget(ui_->page_Light);
}

void VLK_Widget_Config::retranslate()
{
    setLocale(QLocale());
    if (vlkDevice)
        setWindowTitle(vlkDevice->model());
    lightWindow_->retranslate();
    fullWindow_->retranslate();
}
