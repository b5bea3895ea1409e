#include "dialog/widget_config.h"

#include "ui_VLK_Designer_Widget_Config.h"

#include "dialog/config_pages.h"
#include "dialog/document_menu.h"
#include "dialog/file_names.h"
#include "dialog/report_dialog.h"
#include "dialog/review_area.h"
#include "dialog/review_panel.h"
#include "dialog/setting_marks.h"
#include "dialog/tab_navigation.h"
#include "dialog/unsaved_bar.h"
#include "dialog/widget_config_full.h"
#include "dialog/widget_config_light.h"
#include "link/device.h"
#include "link/requests.h"
#include "review/setting_parts.h"
#include "settings/all_settings.h"
#include "typing/area_keys.h"
#include "typing/kept_palette.h"
#include "typing/text_entry.h"
#include "typing/typed_entry.h"
#include "windows/fit_to_screen.h"
#include "xml/xml_document.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLayout>
#include <QLocale>
#include <QLoggingCategory>
#include <QPushButton>
#include <QTimer>

namespace {
Q_LOGGING_CATEGORY(lcSaved, "vlk.configuration.saved")
}

VLK_Widget_Config::VLK_Widget_Config(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint),
      ui_(std::make_unique<Ui::VLK_Designer_Widget_Config>()),
      history_({[this] { return ui_->stackedWidget->currentIndex(); },
                [this](int window) { ui_->stackedWidget->setCurrentIndex(window); }}),
      review_(history_, [this] { return isQuick(); }), places_([this] { return pagesOnShow(); }),
      keeper_(review_, *this)
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
    connect(lightWindow_, &VLK_Widget_Config_Light::saveRequested, this, [this](const QString& path) {
        if (saveQuickToFile(path))
            fileSaved(path);
    });
    connect(lightWindow_, &VLK_Widget_Config_Light::fullRequested, this, &VLK_Widget_Config::switchToFull);
    connect(fullWindow_, &VLK_Widget_Config_Full::closeRequested, this, &QDialog::close);
    connect(fullWindow_, &VLK_Widget_Config_Full::quickRequested, this, &VLK_Widget_Config::switchToQuick);
    connect(fullWindow_, &VLK_Widget_Config_Full::saved, this, &VLK_Widget_Config::fileSaved);
    connect(fullWindow_, &VLK_Widget_Config_Full::writeRequested, this, &VLK_Widget_Config::write);
    addReview();
    addDocuments();
    addKeeper();
    nameWindow();
    retranslateReview();
}

VLK_Widget_Config::~VLK_Widget_Config() = default;

void VLK_Widget_Config::addReview()
{
    fullWindow_->pages().forEach([this](auto& page) { history_.watch(page.settings()); });
    connect(lightWindow_, &VLK_Widget_Config_Light::formMade, this,
            [this](vlk::PageSettings& settings) { history_.watch(settings); });
    // In front of the bar for the eye, and so for Tab.
    unsaved_ = new vlk::UnsavedBar(review_, this);
    area_ = new vlk::ReviewArea(review_, places_, this, [this] {
        isQuick() ? lightWindow_->focusFirstField() : fullWindow_->focusFirstField();
    });
    // Both windows share them.
    const auto place = [this] {
        for (QWidget* panel : area_->panels())
            isQuick() ? lightWindow_->addReview(area_->bar(), panel)
                      : fullWindow_->addReview(area_->bar(), panel);
    };
    connect(ui_->stackedWidget, &QStackedWidget::currentChanged, this, place);
    place();
    new vlk::AreaKeys(this, [this] { return areas(); });
    marks_ = new vlk::SettingMarks(
        review_, [this] { return pageOnShow(); }, this);
    vlk::TabNavigation& tabs = fullWindow_->navigation();
    connect(marks_, &vlk::SettingMarks::tabMarked, &tabs, &vlk::TabNavigation::setMark);
    connect(&tabs, &vlk::TabMenu::moved, marks_, &vlk::SettingMarks::refresh);
    connect(ui_->stackedWidget, &QStackedWidget::currentChanged, marks_, &vlk::SettingMarks::refresh);
    connect(&history_, &vlk::EditHistory::stepped, this, [this](int page, int row, const QString& other) {
        const vlk::Values& values = history_.pages()[page]->values();
        // The step leads to the first of a record's fields that it has changed.
        const std::vector<int> parts =
            vlk::review::differingParts(values.setting(row), values.held()[row], other);
        places_.goTo(vlk::review::FileKeys::all().tableOf(values.table()), row,
                     parts.empty() ? -1 : parts.front());
    });
}

void VLK_Widget_Config::addDocuments()
{
    documents_ = new vlk::DocumentMenu(this);
    area_->bar()->addLast(documents_);
    connect(documents_, &vlk::DocumentMenu::presetToApply, this, [this] {
        if (area_->differences()->choosePreset())
            area_->show(vlk::ReviewBar::Differences);
    });
    connect(documents_, &vlk::DocumentMenu::presetToSave, this, [this] {
        // What is closed was compared with the defaults or a file for another purpose.
        const bool isClosed = !area_->differences()->isVisible();
        if (isClosed)
            review_.compareWith(vlk::ConfigurationReview::Against::File);
        area_->show(vlk::ReviewBar::Differences);
        if (isClosed)
            area_->differences()->chooseAll(true);
        area_->differences()->saveAsPreset();
    });
    connect(documents_, &vlk::DocumentMenu::reportWanted, this, &VLK_Widget_Config::showReport);
}

bool VLK_Widget_Config::showPreset(const QString& path)
{
    if (!isVisible() || !review_.compareWith(vlk::ConfigurationReview::Against::Preset, path))
        return false;
    area_->show(vlk::ReviewBar::Differences);
    return true;
}

void VLK_Widget_Config::showReport()
{
    if (!report_)
        report_ = new vlk::ReportDialog(
            review_, [this] { return vlk::aboutConfiguration(review_, file_, isOfTracker_); }, this);
    // What is still being typed is told too.
    vlk::TypedEntry::finishIn(this);
    history_.settle();
    report_->open();
}

void VLK_Widget_Config::addKeeper()
{
    const auto place = [this] {
        isQuick() ? lightWindow_->addNotice(unsaved_) : fullWindow_->addNotice(unsaved_);
    };
    connect(ui_->stackedWidget, &QStackedWidget::currentChanged, this, place);
    place();
    // A file that was opened stays as it is.
    connect(&keeper_, &vlk::EditKeeper::written, this,
            [this](const QByteArray& content, const QMap<QString, QString>& quick) {
                if (!file_.isEmpty())
                    return;
                review_.setWritten(content, quick);
                unsaved_->endReplaced();
            });
    connect(&keeper_, &vlk::EditKeeper::safe, unsaved_, &vlk::UnsavedBar::drop);
    connect(&keeper_, &vlk::EditKeeper::failed, this, [this] { unsaved_->tellFailure(keeper_.failure()); });
    connect(&keeper_, &vlk::EditKeeper::keptAgain, unsaved_, &vlk::UnsavedBar::tellKeptAgain);
    connect(area_->differences(), &vlk::ReviewPanel::told, unsaved_, &vlk::UnsavedBar::tellFile);
    connect(unsaved_, &vlk::UnsavedBar::tookOver, this, [this] {
        // With what the tracker holds there is nothing to keep.
        if (review_.edited() == 0)
            keeper_.beginAnew();
    });
    connect(unsaved_, &vlk::UnsavedBar::saveWanted, this, [this] {
        const char* name = isQuick() ? "pushButton_Light_SaveToFile" : "pushButton_SaveToFile";
        findChild<QPushButton*>(QLatin1String(name))->click();
    });
    connect(unsaved_, &vlk::UnsavedBar::shown, this, [this] { area_->show(vlk::ReviewBar::Differences); });
}

// A page that moves under the mouse is a wrong key or a wrong press. Where the screen is low the page needs
// the lines more: a notice of the host stands over the row of the search, which Ctrl+F brings out again.
void VLK_Widget_Config::resizeEvent(QResizeEvent* event)
{
    constexpr int kRoomy = 560;
    using Place = vlk::NoticeBar::Place;
    unsaved_->keepPlace(height() >= kRoomy ? Place::Lines : Place::Edge);
    QDialog::resizeEvent(event);
}

std::vector<QWidgetList> VLK_Widget_Config::areas() const
{
    const QWidgetList panels = area_->panels();
    QWidgetList content;
    QWidgetList buttons;
    const QWidget* window = isQuick() ? static_cast<QWidget*>(lightWindow_) : fullWindow_;
    for (QWidget* part : window->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (part == area_->bar() || part == unsaved_ || panels.contains(part))
            continue;
        // Some stand in a frame.
        const bool isButton = qobject_cast<QPushButton*>(part) ||
                              part->findChild<QPushButton*>(QString(), Qt::FindDirectChildrenOnly);
        (isButton ? buttons : content).append(part);
    }
    return {{area_->bar()}, content, panels, buttons};
}

void VLK_Widget_Config::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape || !(area_->escape() || unsaved_->escape()))
        QDialog::keyPressEvent(event);
}

bool VLK_Widget_Config::isQuick() const
{
    return ui_->stackedWidget->currentWidget() == ui_->page_Light;
}

std::vector<vlk::PageSettings*> VLK_Widget_Config::pagesOnShow() const
{
    std::vector<vlk::PageSettings*> pages = history_.pages();
    const auto quick = pages.begin() + vlk::allSettings().size();
    if (isQuick())
        pages.erase(pages.begin(), quick);
    else
        pages.erase(quick, pages.end());
    return pages;
}

vlk::PageSettings* VLK_Widget_Config::pageOnShow()
{
    for (vlk::PageSettings* page : pagesOnShow()) {
        if (isQuick() || page->tabIndex() == fullWindow_->navigation().current())
            return page;
    }
    return nullptr;
}

void VLK_Widget_Config::open(const vlk::OpenRequest& request, char* ussdBuffer)
{
    keeper_.leave();
    history_.close();
    lightWindow_->setDefaults();
    fullWindow_->setDefaults();
    const QString path = QString::fromLocal8Bit(static_cast<const char*>(request.path));
    vlk::XmlDocument document(path, QStringLiteral("DEVICE"));
    QString title = vlkDevice ? vlkDevice->model() : QString();
    if (path.isEmpty()) {
        title += QStringLiteral(": New");
    } else {
        fullWindow_->loadFromXml(document.root(), ussdBuffer);
        title += request.fromFile == 1 ? QStringLiteral(": %1").arg(QFileInfo(path).fileName())
                                       : QStringLiteral(": Device");
    }
    setWindowTitle(title);
    file_ = request.fromFile == 1 ? QFileInfo(path).fileName() : QString();
    isOfTracker_ = request.fromFile != 1 && !path.isEmpty();
    const bool isFull = request.showFull == 1;
    if (!isFull && !path.isEmpty())
        lightWindow_->loadFromXml(document.root());
    ui_->stackedWidget->setCurrentWidget(isFull ? ui_->page_Full : ui_->page_Light);
    if (!isFull)
        lightWindow_->prepare();
    review_.begin(path.isEmpty() ? nullptr : document.root());
    area_->bar()->begin();
    if (vlkDevice) {
        const QString folder = vlkDevice->xmlFolder();
        const QString subject = vlk::editSubject(path, request.fromFile == 1);
        keeper_.begin(folder, subject, !file_.isEmpty());
        unsaved_->begin(folder, subject);
    }
    vlk::fitToScreen(this);
    show();
    area_->showKept();
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
        write(path);
}

void VLK_Widget_Config::write(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QByteArray content = file.readAll();
    file.close();
    vlk::TextEntry::settleIn(this);
    history_.keepState();
    history_.settle();
    handedOver_ = vlk::handedOver(review_, unsaved_->replaced(), content);
    keeper_.handedOver(content);
    vlk::requests::writeConfiguration(path);
    if (!vlkDevice->confirmsWrites())
        keeper_.confirmed(content);
}

// What was open as a file stays that, and what stands in the fields stays there.
void VLK_Widget_Config::trackerHolds(const QByteArray& content)
{
    if (!isVisible() || !(isOfTracker_ || (file_.isEmpty() && review_.isWritten())))
        return;
    for (vlk::PageSettings* page : history_.pages())
        page->binder().finishTyping();
    history_.settle();
    const std::vector<int> replaced = review_.setReplaced(content);
    unsaved_->tellReplaced(replaced);
    if (replaced.empty())
        keeper_.beginFrom(content);
}

bool VLK_Widget_Config::hasTakenOver() const
{
    return unsaved_->hasTakenOver();
}

void VLK_Widget_Config::fileSaved(const QString& path)
{
    vlk::TextEntry::settleIn(this);
    history_.keepState();
    keeper_.saved(path);
    tellSaved(path);
}

// With the number on the bar's button; nothing was opened of a new one.
void VLK_Widget_Config::tellSaved(const QString& path)
{
    if (file_.isEmpty() && !isOfTracker_ && !review_.isWritten())
        return;
    history_.settle();
    QString changes = QString::number(review_.edited());
    if (const int unedited = review_.unedited(); unedited > 0)
        changes += QStringLiteral("+%1").arg(unedited);
    qCWarning(lcSaved).noquote().nospace()
        << path << ": " << changes << (review_.isWritten() ? " since written" : " since opened");
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

// What is wrong in it the other one may mend.
void VLK_Widget_Config::leaveWindow()
{
    keeper_.keep();
    for (vlk::PageSettings* page : pagesOnShow())
        page->takeBackNews();
}

void VLK_Widget_Config::switchToFull()
{
    leaveWindow();
    history_.asOne([] { return QCoreApplication::translate("vlk", "rev_128"); },
                   [this] { review_.moveToFull([this] { showFull(); }); });
    keeper_.switched();
    unsaved_->endFile();
}

void VLK_Widget_Config::switchToQuick()
{
    leaveWindow();
    history_.asOne([] { return QCoreApplication::translate("vlk", "rev_129"); }, [this] { showQuick(); });
    keeper_.switched();
    unsaved_->endFile();
}

void VLK_Widget_Config::showFull()
{
    vlk::XmlDocument state(QString(), QStringLiteral("DEVICE"));
    saveToXml(state.root());
    state.root()->commit();
    char unusedUssd[vlk::kBalanceUssdSize] = {};
    fullWindow_->loadFromXml(state.root(), unusedUssd);
    ui_->stackedWidget->setCurrentWidget(ui_->page_Full);
}

void VLK_Widget_Config::showQuick()
{
    vlk::XmlDocument state(QString(), QStringLiteral("DEVICE"));
    fullWindow_->saveToXml(state.root());
    state.root()->commit();
    lightWindow_->loadFromXml(state.root());
    ui_->stackedWidget->setCurrentWidget(ui_->page_Light);
}

void VLK_Widget_Config::nameWindow()
{
    setLocale(QLocale());
    if (vlkDevice)
        setWindowTitle(vlkDevice->model());
}

void VLK_Widget_Config::retranslate()
{
    nameWindow();
    // Lists can lose an item with the language.
    history_.asOne([] { return QCoreApplication::translate("vlk", "rev_130"); },
                   [this] {
                       lightWindow_->retranslate();
                       fullWindow_->retranslate();
                   });
    retranslateReview();
}

void VLK_Widget_Config::retranslateReview()
{
    review_.retranslate();
    unsaved_->retranslate();
    area_->retranslate();
    marks_->retranslate();
    documents_->retranslate();
    if (report_)
        report_->retranslate();
}
