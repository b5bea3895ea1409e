#include "dialog/preset_saving.h"

#include "dialog/file_names.h"
#include "fuel/question.h"
#include "review/preset.h"
#include "review/setting_words.h"
#include "windows/page_style.h"
#include "xml/xml_document.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDir>
#include <QFontMetrics>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <optional>
#include <utility>

namespace vlk {

namespace {

QString word(const char* key)
{
    return QCoreApplication::translate("vlk", key);
}

// None when the user cancels.
std::optional<review::Personal> askPersonal(QWidget* parent, int others)
{
    QMessageBox box(QMessageBox::Question, word("rev_199"), word("rev_200"), QMessageBox::NoButton, parent);
    box.setObjectName(QStringLiteral("messageBox_Personal"));
    auto* include = new QCheckBox(word("rev_201"));
    box.setCheckBox(include);
    auto* save = box.addButton(word("rev_202"), QMessageBox::AcceptRole);
    auto* cancel = box.addButton(word("rev_203"), QMessageBox::RejectRole);
    dressMessageBox(box);
    box.setDefaultButton(save);
    box.setEscapeButton(cancel);
    // Without them there would be nothing in it.
    if (others == 0) {
        save->setEnabled(false);
        QObject::connect(include, &QCheckBox::toggled, save, &QPushButton::setEnabled);
    }
    box.exec();
    if (box.clickedButton() != save)
        return {};
    return include->isChecked() ? review::Personal::Included : review::Personal::LeftOut;
}

// Settings that a preset sets as a whole.
using Wholes = std::vector<std::pair<int, review::ChosenParts>>; // by key

Wholes wholesOf(const review::FileState& from, const std::vector<int>& keys)
{
    Wholes wholes;
    for (const int key : keys) {
        if (const auto parts = review::chosenParts(key, from.at(key).meaning))
            wholes.emplace_back(key, *parts);
    }
    return wholes;
}

// In two lines, for which the bar has room: where the second one is needed, the middle of the path gives way.
// The tool tip tells the rest.
Notice savedPresetNotice(const QWidget& panel, const QString& path, int count, int all, const Wholes& wholes)
{
    constexpr int kBesideText = 80; // of the bar: its icon, its cross and the margins
    const QLocale locale;
    const auto saved = [&](const QString& name) {
        return word("rev_380").arg(name, locale.toString(count), locale.toString(all));
    };
    const QString name = QDir::toNativeSeparators(path);
    if (wholes.empty())
        return {Mark::Right, saved(name), {}};
    const QFontMetrics metrics = panel.fontMetrics();
    const int room = panel.width() - kBesideText - metrics.horizontalAdvance(saved({}));
    const QString shown = metrics.elidedText(name, Qt::ElideMiddle, room);
    QStringList lines;
    QStringList told;
    if (shown != name)
        told << name;
    for (const auto& [key, parts] : wholes) {
        const review::FileKey& place = review::FileKeys::all()[key];
        const TableLayout& layout = review::FileKeys::all().layout(place.table);
        const QString caption = review::wordsOf(layout, place.rows.front()).caption;
        const bool goesOff = parts.rest.isEmpty();
        const auto tell = [&, &parts = parts](const char* text) {
            return word(text).arg(caption).arg(parts.count).arg(parts.all);
        };
        lines << tell(goesOff ? "rev_382" : "rev_383");
        told << (goesOff ? tell("rev_252") : tell("rev_342").arg(parts.rest));
    }
    Notice notice{Mark::Advice, saved(shown) + QLatin1Char('\n') + lines.join(QLatin1Char(' ')), {}};
    notice.more = told.join(QLatin1Char('\n'));
    return notice;
}

} // namespace

std::function<Notice()> savePreset(QWidget* parent, const review::FileState& from, std::vector<int> keys,
                                   int all)
{
    std::erase_if(keys, [&](int key) { return !from.at(key).isThere; });
    if (keys.empty()) {
        warn(parent, word("rev_226"));
        return {};
    }
    std::optional personal = review::Personal::LeftOut;
    const auto personals = std::ranges::count_if(keys, review::isPersonal);
    if (personals > 0)
        personal = askPersonal(parent, static_cast<int>(keys.size() - personals));
    if (!personal)
        return {};
    const QString path = askPathToSave(
        parent, {FileKind::Preset, word("rev_199"), word("rev_204"), word("rev_205"), QStringLiteral("xml")});
    if (path.isEmpty())
        return {};
    XmlDocument document(QString(), QStringLiteral("DEVICE"));
    review::writePreset(*document.root(), from, keys, *personal);
    const QString failure = saveAsAsked(path, document.text(), personal == review::Personal::Included);
    if (!failure.isEmpty()) {
        warn(parent, failure);
        return {};
    }
    const int count = static_cast<int>(keys.size()) -
                      (personal == review::Personal::LeftOut ? static_cast<int>(personals) : 0);
    return [parent, path, count, all, wholes = wholesOf(from, keys)] {
        return savedPresetNotice(*parent, path, count, all, wholes);
    };
}

} // namespace vlk
