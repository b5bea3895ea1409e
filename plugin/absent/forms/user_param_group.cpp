#include "absent/forms/user_param_group.h"

#include "base/translated.h"
#include "windows/eliding_combobox.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include <algorithm>
#include <utility>

namespace vlk {

namespace {

constexpr int kSlotColumns = 2;

const char* titleOf(int bytes)
{
    switch (bytes) {
    case 1:
        return "cfgt5_003";
    case 2:
        return "cfgt5_004";
    case 4:
        return "cfgt5_005";
    default:
        return "cfgt5_006";
    }
}

} // namespace

UserParamGroup::UserParamGroup(const UserParamSlots& slots, const std::function<void(int)>& chosen)
    : slots_(slots), box_(new QGroupBox)
{
    auto* grid = new QGridLayout(box_);
    box_->setProperty("byColumns", true);
    box_->setObjectName(QStringLiteral("groupBox_User_%1Byte").arg(slots.bytes));
    const int rows = (slots.count + kSlotColumns - 1) / kSlotColumns;
    for (int slot = 1; slot <= slots.count; ++slot) {
        auto* box = new ElidingComboBox;
        box->setObjectName(QStringLiteral("comboBox_User_%1Byte_%2").arg(slots.bytes).arg(slot));
        auto* label = new QLabel(QString::number(slot));
        label->setBuddy(box);
        const int column = (slot - 1) / rows * 2;
        grid->addWidget(label, (slot - 1) % rows, column, Qt::AlignRight);
        grid->addWidget(box, (slot - 1) % rows, column + 1);
        grid->setColumnStretch(column + 1, 1);
        boxes_.push_back(box);
        QObject::connect(box, &QComboBox::currentTextChanged, box_, [chosen, slot] { chosen(slot); });
    }
    retranslate();
    enable();
}

// The choices of nothing and of what is always there change their texts; what forms offer they offer anew.
void UserParamGroup::retranslate()
{
    const auto put = [this](QString* held, const QString& text) {
        if (held->isEmpty())
            offered_ << text;
        const int place = offered_.indexOf(*held);
        if (place >= 0)
            offered_[place] = text;
        for (ElidingComboBox* box : boxes_) {
            const QSignalBlocker quiet(box);
            const int item = held->isEmpty() ? -1 : itemOf(box, *held);
            if (item >= 0) {
                box->setItemText(item, text);
                box->setItemData(item, text);
            } else if (held->isEmpty()) {
                box->addItem(text, text);
            }
            if (box->rememberedText() == *held)
                box->setRememberedText(text);
        }
        *held = text;
    };
    box_->setTitle(translated(titleOf(slots_.bytes)));
    reserved_ = translated("cfgt5_002");
    put(&none_, translated("cfgt5_001"));
    for (std::size_t i = 0; i < fixed_.size(); ++i) {
        if (kFixedUserParams[i].bytes == slots_.bytes)
            put(&fixed_[i], translated(kFixedUserParams[i].text));
    }
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        boxes_[i]->reserve({}, none_);
        boxes_[i]->setAccessibleName(QStringLiteral("%1, %2").arg(box_->title()).arg(i + 1));
    }
}

int UserParamGroup::itemOf(const ElidingComboBox* box, const QString& text) const
{
    return box->findData(text, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

void UserParamGroup::enable()
{
    for (ElidingComboBox* box : boxes_)
        box->setEnabled(offered_.size() > 1);
}

void UserParamGroup::append(const QString& text, const ElidingComboBox* except)
{
    for (ElidingComboBox* box : boxes_) {
        if (box != except && itemOf(box, text) < 0)
            box->addItem(text, text);
    }
}

void UserParamGroup::add(const QString& text)
{
    offered_ << text;
    if (slots_.bytes == 1) {
        offered_.removeDuplicates();
        offered_.sort(Qt::CaseSensitive);
    }
    enable();
    const bool taken =
        std::ranges::any_of(boxes_, [&](const auto* box) { return box->currentText() == text; });
    if (!text.isEmpty() && !taken)
        append(text, nullptr);
}

void UserParamGroup::remove(const QString& text)
{
    if (isNone(text))
        return;
    offered_.removeAll(text);
    enable();
    for (ElidingComboBox* box : boxes_) {
        if (box->currentText() == text)
            box->setCurrentIndex(0);
        if (const int item = itemOf(box, text); item >= 0)
            box->removeItem(item);
    }
}

QString UserParamGroup::text(int slot) const
{
    const QString text = boxes_.at(static_cast<std::size_t>(slot) - 1)->currentText();
    return isNone(text) ? QString() : text;
}

void UserParamGroup::choose(int slot, const QString& text)
{
    ElidingComboBox* box = boxes_.at(static_cast<std::size_t>(slot) - 1);
    box->setCurrentIndex(text.isEmpty() ? 0 : std::max(itemOf(box, text), 0));
}

void UserParamGroup::takeChoice(int slot)
{
    ElidingComboBox* box = boxes_.at(static_cast<std::size_t>(slot) - 1);
    const QString previous = box->rememberedText();
    const QString current = box->currentText();
    box->setRememberedText(current);

    if (!isNone(previous) && offered_.contains(previous))
        append(previous, box);
    if (isNone(current))
        return;
    for (ElidingComboBox* other : boxes_) {
        const int item = itemOf(other, current);
        if (other != box && other->currentText() != current && item >= 0)
            other->removeItem(item);
    }
}

int UserParamGroup::bytesInUse() const
{
    const auto used = std::ranges::count_if(boxes_, [this](const ElidingComboBox* box) {
        return !isNone(box->currentText()) && box->currentText() != reserved_;
    });
    return slots_.bytes * static_cast<int>(used);
}

} // namespace vlk
