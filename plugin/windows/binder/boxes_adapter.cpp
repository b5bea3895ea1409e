#include "windows/binder/boxes_adapter.h"

#include "base/number_text.h"
#include "windows/binder/checkable.h"
#include "windows/binder/code_list.h"

#include <QRadioButton>
#include <QSignalBlocker>

namespace vlk {

ExclusiveAdapter::ExclusiveAdapter(const Choice& choice, const Joint& joint)
    : Adapter(joint.edits, joint.row), choice_(choice)
{
    for (const Code& code : choice.codes)
        boxes_.push_back(joint.find(code.widget));
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        if (!boxes_[i])
            continue;
        onToggled(boxes_[i], this, [this, i](bool on) {
            if (on) {
                edited(QString::fromLatin1(choice_.codes[i].code));
                // Check boxes do not uncheck each other.
                show(values().value(this->row()));
            } else if (!qobject_cast<QRadioButton*>(boxes_[i])) {
                take();
            }
        });
        // Choosing one once more fills in what belongs to it once more.
        if (auto* button = qobject_cast<QRadioButton*>(boxes_[i]))
            connect(button, &QRadioButton::clicked, this, [this] { take(); });
    }
}

void ExclusiveAdapter::dress()
{
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        if (boxes_[i])
            caption(boxes_[i], choice_.codes[i].label, choice_.codes[i].format);
    }
}

void ExclusiveAdapter::show(const QString& value)
{
    // The one to check comes first: among radio buttons there is always one.
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        if (boxes_[i] && value == QLatin1String(choice_.codes[i].code))
            setChecked(boxes_[i], true);
    }
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        if (boxes_[i] && value != QLatin1String(choice_.codes[i].code))
            setChecked(boxes_[i], false);
    }
}

void ExclusiveAdapter::take()
{
    edited(held());
}

QString ExclusiveAdapter::held() const
{
    QString none;
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        QString code = QString::fromLatin1(choice_.codes[i].code);
        if (!boxes_[i])
            none = code;
        else if (isChecked(boxes_[i]))
            return code;
    }
    return none;
}

PositionsAdapter::PositionsAdapter(const Digits& digits, const Joint& joint)
    : Adapter(joint.edits, joint.row), digits_(digits)
{
    for (const Position& position : digits.positions) {
        boxes_.push_back(joint.find(position.widget));
        checks_.push_back(joint.find(position.box));
    }
    for (std::size_t i = 0; i < checks_.size(); ++i) {
        if (checks_[i]) {
            onToggled(checks_[i], this, [this, i](bool on) {
                if (boxes_[i])
                    boxes_[i]->setEnabled(on);
                take();
            });
        }
    }
    for (QWidget* box : boxes_) {
        if (auto* list = qobject_cast<QComboBox*>(box))
            connect(list, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] { take(); });
        else if (box)
            onToggled(box, this, [this](bool) { take(); });
    }
}

void PositionsAdapter::dress()
{
    const Limits limits = values().limits(row());
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        if (!boxes_[i])
            continue;
        caption(checks_[i] ? checks_[i] : boxes_[i], digits_.positions[i].caption, "%1");
        if (checks_[i])
            boxes_[i]->setAccessibleName(checks_[i]->accessibleName());
        auto* list = qobject_cast<QComboBox*>(boxes_[i]);
        if (!list)
            continue;
        const QSignalBlocker blocker(list);
        fillCodes(list, digits_.items, limits);
    }
    show(values().value(row()));
}

void PositionsAdapter::show(const QString& value)
{
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const int digit = digitAt(value, i);
        if (checks_[i] && boxes_[i]) {
            setChecked(checks_[i], digit != 0);
            boxes_[i]->setEnabled(digit != 0);
        }
        auto* list = qobject_cast<QComboBox*>(boxes_[i]);
        if (list && checks_[i] && digit == 0)
            list->setCurrentIndex(0);
        else if (list)
            selectCode(list, QString::number(digit));
        else if (boxes_[i])
            setChecked(boxes_[i], digit != 0);
    }
}

int PositionsAdapter::digit(std::size_t position) const
{
    if (checks_[position] && !isChecked(checks_[position]))
        return 0;
    if (const auto* list = qobject_cast<const QComboBox*>(boxes_[position]))
        return list->currentData().toInt();
    return boxes_[position] && isChecked(boxes_[position]) ? 1 : 0;
}

QString PositionsAdapter::held() const
{
    QString digits;
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        digits += QString::number(digit(i));
    return digits;
}

std::unique_ptr<Adapter> adapterFor(const Digits& row, const Joint& joint)
{
    return std::make_unique<PositionsAdapter>(row, joint);
}

QWidget* inputOf(const Digits&)
{
    return nullptr;
}

} // namespace vlk
