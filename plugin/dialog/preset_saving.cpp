#include "dialog/preset_saving.h"

#include "dialog/file_names.h"
#include "fuel/question.h"
#include "review/preset.h"
#include "review/setting_words.h"
#include "windows/page_style.h"
#include "xml/xml_document.h"

#include <QCheckBox>
#include <QCoreApplication>
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
    return include->isChecked() ? review::Personal::included : review::Personal::leftOut;
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

Notice savedPresetNotice(const QString& path, const Wholes& wholes)
{
    Notice notice = savedNotice(path);
    for (const auto& [key, parts] : wholes) {
        const review::FileKey& place = review::FileKeys::all()[key];
        const TableLayout& layout = review::FileKeys::all().layout(place.table);
        const QString caption = review::wordsOf(layout, place.rows.front()).caption;
        notice.mark = Mark::advice;
        const QString told =
            word(parts.rest.isEmpty() ? "rev_252" : "rev_342").arg(caption).arg(parts.count).arg(parts.all);
        notice.text += QLatin1Char('\n') + (parts.rest.isEmpty() ? told : told.arg(parts.rest));
    }
    return notice;
}

} // namespace

std::function<Notice()> savePreset(QWidget* parent, const review::FileState& from, std::vector<int> keys)
{
    std::erase_if(keys, [&](int key) { return !from.at(key).isThere; });
    if (keys.empty()) {
        warn(parent, word("rev_226"));
        return {};
    }
    std::optional personal = review::Personal::leftOut;
    const auto personals = std::ranges::count_if(keys, review::isPersonal);
    if (personals > 0)
        personal = askPersonal(parent, static_cast<int>(keys.size() - personals));
    if (!personal)
        return {};
    const QString path = askPathToSave(
        parent, {FileKind::preset, word("rev_199"), word("rev_204"), word("rev_205"), QStringLiteral("xml")});
    if (path.isEmpty())
        return {};
    XmlDocument document(QString(), QStringLiteral("DEVICE"));
    review::writePreset(*document.root(), from, keys, *personal);
    const QString failure = saveAsAsked(path, document.text(), personal == review::Personal::included);
    if (!failure.isEmpty()) {
        warn(parent, failure);
        return {};
    }
    return [path, wholes = wholesOf(from, keys)] { return savedPresetNotice(path, wholes); };
}

} // namespace vlk
