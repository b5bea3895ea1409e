#include "dialog/setting_menu.h"

#include "review/setting_parts.h"
#include "review/setting_words.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QMenu>

#include <algorithm>

namespace vlk {

namespace {

// Adds to the menu that a widget opens by itself while this lives.
class OwnMenu : public QObject
{
public:
    explicit OwnMenu(std::function<void(QMenu&)> add) : add_(std::move(add))
    {
        qApp->installEventFilter(this);
    }
    bool isThere() const { return isThere_; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (auto* menu =
                event->type() == QEvent::Polish && !isThere_ ? qobject_cast<QMenu*>(watched) : nullptr) {
            isThere_ = true;
            menu->addSeparator();
            add_(*menu);
        }
        return false;
    }

private:
    const std::function<void(QMenu&)> add_;
    bool isThere_ = false;
};

QString nameOf(const SettingOfMenu& setting)
{
    const Values& values = setting.page.values();
    review::SettingWords words = review::wordsOf(values.layout(), setting.row);
    if (setting.part >= 0)
        words.caption = review::partCaption(values.setting(setting.row), setting.part);
    return review::placeText(words);
}

// What the setting is worth with the part as it is in another value.
QString valueWith(const SettingOfMenu& setting, const QString& from)
{
    const Values& values = setting.page.values();
    return setting.part < 0
               ? from
               : review::withPart(values.setting(setting.row), setting.part, values.value(setting.row), from);
}

// The key that has another value than the file as it came; -1 for none.
int changedKey(const SettingOfMenu& setting)
{
    const std::vector<int> keys = ConfigurationReview::keysOf(setting.page, setting.row);
    const review::Differences& edits = setting.review.edits();
    const auto found = std::ranges::find_if(keys, [&](int key) {
        return edits.isDifferent(key) &&
               (setting.part < 0 || valueWith(setting, edits.before().at(key).meaning) !=
                                        setting.page.values().value(setting.row));
    });
    return found == keys.end() ? -1 : *found;
}

// Where a file of this state has the setting; empty where it has none.
QString pathNow(const SettingOfMenu& setting)
{
    for (const int key : ConfigurationReview::keysOf(setting.page, setting.row)) {
        if (setting.review.edits().after().at(key).isThere)
            return review::FileKeys::all()[key].path;
    }
    return {};
}

EditHistory::Words wordsOf(const char* key, const SettingOfMenu& setting)
{
    return [key, setting] {
        return QStringLiteral("%1: %2").arg(QCoreApplication::translate("vlk", key), nameOf(setting));
    };
}

void edit(const SettingOfMenu& setting, const char* words, const QString& value)
{
    setting.review.history().asOne(wordsOf(words, setting),
                                   [&] { setting.page.binder().set(setting.row, value); });
}

void bringBack(const SettingOfMenu& setting)
{
    constexpr const char* words = "rev_166";
    const QString quickBefore = setting.review.quickBefore(setting.page, setting.row);
    if (!quickBefore.isNull())
        return edit(setting, words, quickBefore);
    const int key = changedKey(setting);
    if (key < 0)
        return;
    if (setting.part < 0)
        setting.review.bringBack({key}, wordsOf(words, setting));
    else
        edit(setting, words, valueWith(setting, setting.review.edits().before().at(key).meaning));
}

void addActions(QMenu& menu, const SettingOfMenu& setting)
{
    const Values& values = setting.page.values();
    const QString normal = valueWith(setting, loadDefault(values.setting(setting.row)));
    const auto add = [&](const char* key, const char* name, bool isOn, auto action) {
        QAction* entry = menu.addAction(QCoreApplication::translate("vlk", key));
        entry->setObjectName(QString::fromLatin1(name));
        entry->setEnabled(isOn);
        QObject::connect(entry, &QAction::triggered, action);
    };
    const bool isChanged =
        changedKey(setting) >= 0 || !setting.review.quickBefore(setting.page, setting.row).isNull();
    add("rev_163", "action_BringBack", isChanged, [setting] { bringBack(setting); });
    add("rev_164", "action_Default", normal != values.value(setting.row),
        [setting, normal] { edit(setting, "rev_167", normal); });
    const QString path = pathNow(setting);
    add("rev_165", "action_CopyKey", !path.isEmpty(), [path] { QApplication::clipboard()->setText(path); });
}

} // namespace

void openSettingMenu(const SettingOfMenu& setting, QObject* widget, QContextMenuEvent* event)
{
    const auto add = [&setting](QMenu& menu) { addActions(menu, setting); };
    {
        const OwnMenu own(add);
        widget->event(event);
        // What stands around the widget has a menu of its own.
        event->accept();
        if (own.isThere())
            return;
    }
    auto* menu = new QMenu(qobject_cast<QWidget*>(widget));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    add(*menu);
    menu->popup(event->globalPos());
}

} // namespace vlk
