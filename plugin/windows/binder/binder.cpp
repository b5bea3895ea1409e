#include "windows/binder/binder.h"

#include "settings/value_text.h"
#include "typing/typed_entry.h"
#include "windows/binder/boxes_adapter.h"
#include "windows/binder/cell_adapter.h"
#include "windows/binder/choice_adapter.h"
#include "windows/binder/flag_adapter.h"
#include "windows/binder/handles_adapter.h"
#include "windows/binder/mask_adapter.h"
#include "windows/binder/number_adapter.h"
#include "windows/binder/period_adapter.h"
#include "windows/binder/text_adapter.h"
#include "windows/vlk_dblslider2.h"

#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QSpinBox>
#include <QTreeWidget>

#include <algorithm>

namespace vlk {

namespace {

// What was typed and not taken as it was, and values that are doubtful, at a save: "CAPTION: WHY".
Q_LOGGING_CATEGORY(lcTyping, "vlk.settings.typing")

// Counts what is being shown, so that the widgets' signals are no edits meanwhile.
class Showing
{
public:
    explicit Showing(int& depth) : depth_(depth) { ++depth_; }
    ~Showing() { --depth_; }
    Q_DISABLE_COPY(Showing)

private:
    int& depth_;
};

} // namespace

Binder::Binder(Values& values) : values_(values), layout_(values.layout()), adapters_(layout_.rows.size()) {}

Binder::~Binder() = default;

bool Binder::isLate(const Setting& setting) const
{
    const auto isLate = [&](const char* name) {
        return name && forms_.isLate(numberedName(name, setting.number, setting.inner));
    };
    const auto anyOf = [&](const auto& boxes) {
        return std::any_of(boxes.begin(), boxes.end(), [&](const auto& box) { return isLate(box.widget); });
    };
    return isLate(setting.widget) || anyOf(setting.codes) || anyOf(setting.positions) || anyOf(setting.parts);
}

std::unique_ptr<Adapter> Binder::makeAdapter(int row)
{
    const Setting& setting = values_.setting(row);
    const QString& path = layout_.rows[row].path;
    const auto found = [&](const char* name) {
        const QString object = numberedName(name, setting.number, setting.inner);
        QWidget* widget = forms_.find(object, setting.number);
        if (!widget && !object.isEmpty())
            problems_ << QStringLiteral("%1: no widget %2").arg(path, object);
        return widget;
    };
    const auto boxesOf = [&](const auto& list) {
        std::vector<QWidget*> boxes;
        for (const auto& entry : list)
            boxes.push_back(found(entry.widget));
        return boxes;
    };
    const bool overBoxes =
        setting.kind == Kind::choice && std::any_of(setting.codes.begin(), setting.codes.end(),
                                                    [](const Code& code) { return code.widget != nullptr; });
    if (overBoxes)
        return std::make_unique<ExclusiveAdapter>(*this, row, boxesOf(setting.codes));
    if (setting.kind == Kind::digits) {
        std::vector<QWidget*> checks;
        for (const Position& position : setting.positions)
            checks.push_back(found(position.box));
        return std::make_unique<PositionsAdapter>(*this, row, boxesOf(setting.positions), checks);
    }
    if (setting.kind == Kind::period) {
        const std::vector<QWidget*> boxes = boxesOf(setting.parts);
        if (std::find(boxes.begin(), boxes.end(), nullptr) != boxes.end())
            return nullptr;
        return std::make_unique<PeriodAdapter>(*this, row, boxes);
    }
    QWidget* widget = found(setting.widget);
    if (!widget)
        return nullptr;
    if (auto* tree = qobject_cast<QTreeWidget*>(widget))
        return std::make_unique<CellAdapter>(*this, row, tree);
    if (auto* shown = dynamic_cast<MaskWidget*>(widget); shown && setting.kind == Kind::mask)
        return std::make_unique<MaskAdapter>(*this, row, widget, shown);
    if (setting.kind == Kind::flag)
        return std::make_unique<FlagAdapter>(*this, row, widget);
    if (auto* box = qobject_cast<QComboBox*>(widget); box && setting.kind == Kind::choice)
        return std::make_unique<ChoiceAdapter>(*this, row, box);
    if (auto* edit = qobject_cast<QLineEdit*>(widget); edit && setting.kind == Kind::text)
        return std::make_unique<TextAdapter>(*this, row, edit);
    if (setting.kind == Kind::integer || setting.kind == Kind::real || setting.kind == Kind::scaled)
        return std::make_unique<NumberAdapter>(*this, row, widget, found(setting.companion));
    problems_ << QStringLiteral("%1: %2 is no widget for it").arg(path, widget->objectName());
    return nullptr;
}

void Binder::bind()
{
    const Showing showing(showing_);
    problems_ = layout_.problems;
    for (std::size_t row = 0; row < adapters_.size(); ++row) {
        const Setting& setting = *layout_.rows[row].setting;
        if (!adapters_[row] && setting.kind != Kind::link && !isLate(setting))
            adapters_[row] = makeAdapter(static_cast<int>(row));
    }
    handles_.clear();
    for (const TableLayout::Distance& rule : layout_.distances) {
        const Setting& setting = *layout_.rows[rule.first].setting;
        auto* slider = qobject_cast<VLK_DblSlider2*>(forms_.find(rule.slider, setting.number));
        if (slider)
            handles_.push_back(std::make_unique<HandlesAdapter>(*this, rule, slider));
        else if (!rule.slider.isEmpty())
            problems_ << QStringLiteral("no slider %1").arg(rule.slider);
    }
    targets_.clear();
    for (const TableLayout::Enable& rule : layout_.enables) {
        for (const QString& name : rule.targets) {
            QWidget* widget = forms_.find(name, rule.number);
            if (!widget) {
                if (!forms_.isLate(name))
                    problems_ << QStringLiteral("no widget %1 to enable").arg(name);
                continue;
            }
            const auto known = std::find_if(targets_.begin(), targets_.end(), [&](const Target& target) {
                return target.widget == widget && target.shows == rule.shows;
            });
            if (known == targets_.end())
                targets_.push_back({widget, forms_.labelOf(widget), rule.shows, {&rule}});
            else
                known->rules.push_back(&rule);
        }
    }
}

void Binder::join(QWidget* form)
{
    std::vector<bool> before;
    for (const auto& adapter : adapters_)
        before.push_back(adapter != nullptr);
    addForm(form);
    bind();
    {
        const Showing showing(showing_);
        for (std::size_t row = 0; row < adapters_.size(); ++row) {
            if (adapters_[row] && !before[row]) {
                adapters_[row]->dress();
                ranges_[static_cast<int>(row)] = rangeOf(static_cast<int>(row));
                showRow(static_cast<int>(row));
            }
        }
    }
    evaluateRules();
}

void Binder::dress()
{
    const Showing showing(showing_);
    for (const auto& adapter : adapters_) {
        if (adapter)
            adapter->dress();
    }
    for (const TableLayout::RangeWhen& rule : layout_.ranges)
        ranges_[rule.row] = rangeOf(rule.row);
    for (const TableLayout::SoleList& list : layout_.soleLists) {
        for (const TableLayout::Sole& sole : list.soles)
            ranges_[sole.row] = rangeOf(sole.row);
    }
}

Binder::Range Binder::rangeOf(int row) const
{
    return {values_.limits(row), values_.unitKey(row)};
}

// Where another range holds than the widget was dressed with.
void Binder::dressRanged(int row)
{
    if (!adapters_[row])
        return;
    const Range now = rangeOf(row);
    const auto known = ranges_.find(row);
    if (known != ranges_.end() && known->second == now)
        return;
    ranges_[row] = now;
    adapters_[row]->dress();
    showRow(row);
}

void Binder::show()
{
    {
        const Showing showing(showing_);
        for (std::size_t row = 0; row < adapters_.size(); ++row)
            showRow(static_cast<int>(row));
        for (const auto& handles : handles_)
            handles->show();
        for (std::size_t row = 0; row < adapters_.size(); ++row) {
            if (!layout_.rows[row].ranges.empty())
                dressRanged(static_cast<int>(row));
        }
        for (const TableLayout::SoleList& list : layout_.soleLists)
            dressList(list);
    }
    evaluateRules();
}

void Binder::dressList(const TableLayout::SoleList& list)
{
    for (const TableLayout::Sole& sole : list.soles)
        dressRanged(sole.row);
}

void Binder::showRow(int row)
{
    if (adapters_[row])
        adapters_[row]->show(values_.value(row));
}

void Binder::evaluateRules()
{
    for (const TableLayout::Doubt& rule : layout_.doubts) {
        if (adapters_[rule.row])
            adapters_[rule.row]->doubt(
                values_.holds(rule) ? QCoreApplication::translate("vlk", rule.rule->complaint) : QString());
    }
    for (const Target& target : targets_) {
        if (!target.widget)
            continue;
        const bool allowed = std::all_of(target.rules.begin(), target.rules.end(),
                                         [&](const auto* rule) { return values_.holds(*rule); });
        if (target.shows) {
            target.widget->setVisible(allowed);
            continue;
        }
        target.widget->setEnabled(allowed);
        if (target.label)
            target.label->setEnabled(allowed);
    }
}

void Binder::edited(int row, const QString& value)
{
    if (isShowing())
        return;
    const std::vector<int> changed = values_.edit(row, value);
    {
        const Showing showing(showing_);
        // Ranges may follow another value.
        for (const TableLayout::RangeWhen& rule : layout_.ranges) {
            if (std::find(changed.begin(), changed.end(), rule.when.row) != changed.end())
                dressRanged(rule.row);
        }
        for (const TableLayout::SoleList& list : layout_.soleLists) {
            if (std::any_of(changed.begin(), changed.end(), [&](int other) { return list.triggers[other]; }))
                dressList(list);
        }
        for (const int other : changed) {
            if (other != row)
                showRow(other);
        }
        if (values_.value(row) != value)
            showRow(row);
        for (const auto& handles : handles_)
            handles->show();
    }
    if (changed.empty())
        return;
    evaluateRules();
    for (const int other : changed)
        Q_EMIT this->changed(layout_.rows[other].path.mid(layout_.prefix().size()));
}

void Binder::set(int row, const QString& value)
{
    edited(row, value);
    const Showing showing(showing_);
    showRow(row);
}

void Binder::finishTyping()
{
    // The box that is typed into may be one without a setting of its own.
    if (TypedEntry* entry = TypedEntry::of(QApplication::focusWidget()))
        entry->finish();
    for (const auto& adapter : adapters_) {
        if (adapter)
            adapter->finishTyping();
    }
}

void Binder::logNews()
{
    for (const auto& adapter : adapters_) {
        if (!adapter)
            continue;
        const QStringList allNews = adapter->takeNews();
        for (const QString& news : allNews) {
            if (!news.isEmpty())
                qCWarning(lcTyping).noquote()
                    << captionText(values_.setting(adapter->row())) + QStringLiteral(": ") + news;
        }
    }
}

void Binder::forget()
{
    for (const auto& adapter : adapters_) {
        if (adapter)
            adapter->forget();
    }
}

void Binder::selectFirstItems()
{
    for (const auto& adapter : adapters_) {
        if (const auto* choice = dynamic_cast<ChoiceAdapter*>(adapter.get()))
            set(choice->row(), choice->firstItem());
    }
}

QStringList Binder::problems() const
{
    QStringList all = problems_;
    for (std::size_t row = 0; row < adapters_.size(); ++row) {
        const Setting& setting = *layout_.rows[row].setting;
        if (adapters_[row] && !setting.captionKey && setting.codes.empty() && setting.positions.empty())
            all << layout_.rows[row].path + QStringLiteral(": no caption");
    }
    return all;
}

QStringList Binder::waiting() const
{
    QStringList all;
    for (std::size_t row = 0; row < adapters_.size(); ++row) {
        if (!adapters_[row] && isLate(*layout_.rows[row].setting))
            all << layout_.rows[row].path;
    }
    return all;
}

QStringList Binder::disagreements() const
{
    QStringList all;
    for (std::size_t row = 0; row < adapters_.size(); ++row) {
        const QString& value = values_.value(static_cast<int>(row));
        if (adapters_[row] && adapters_[row]->held() != value)
            all << QStringLiteral("%1 is %2, shown %3")
                       .arg(layout_.rows[row].path, value, adapters_[row]->held());
    }
    return all;
}

} // namespace vlk
