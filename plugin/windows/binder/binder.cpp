#include "windows/binder/binder.h"

#include "review/setting_words.h"
#include "typing/typed_entry.h"
#include "windows/binder/adapters.h"
#include "windows/binder/cell_adapter.h"
#include "windows/binder/handles_adapter.h"
#include "windows/vlk_dblslider2.h"

#include <QApplication>
#include <QCoreApplication>
#include <QHash>
#include <QLoggingCategory>
#include <QStringList>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

namespace vlk {

namespace {

// What was typed and not taken as it was, and values that are doubtful, at a save: "FIELD: WHY".
Q_LOGGING_CATEGORY(lcTyping, "vlk.settings.typing")
// The fields of which that holds no longer.
Q_LOGGING_CATEGORY(lcRetyped, "vlk.settings.retyped")

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

Binder::Binder(Values& values)
    : values_(values), layout_(values.layout()), adapters_(layout_.rows.size()), ruled_(values)
{
}

Binder::~Binder() = default;

bool Binder::isLate(const Setting& setting) const
{
    bool late = false;
    tables::eachWidget(setting, [&](std::string_view form, std::string_view, Numbers numbers) {
        late = late || forms_.isLate(numberedName(form, numbers));
    });
    return late;
}

// A row without its widget and a rule without its target are faults of the program, at which a development
// build stops.
std::unique_ptr<Adapter> Binder::makeAdapter(int row)
{
    const Setting& setting = values_.setting(row);
    bool found = false;
    const auto find = [&](const Name& name) {
        QWidget* widget = forms_.find(name, setting.base().numbers);
        Q_ASSERT_X(widget || !name, qPrintable(layout_.rows[row].path), name.tail);
        found = found || widget;
        return widget;
    };
    const Joint joint{*this, row, find};
    if (const Shown* shown = setting.shown(); shown && shown->column > 0) {
        auto* tree = joint.findAs<QTreeWidget>(shown->widget);
        return tree ? std::make_unique<CellAdapter>(joint, tree) : nullptr;
    }
    auto adapter = std::visit([&](const auto& kind) { return adapterFor(kind, joint); }, setting.kind);
    Q_ASSERT_X(adapter || !found, qPrintable(layout_.rows[row].path), "its widget is of another kind");
    return adapter;
}

void Binder::bind()
{
    const Showing showing(showing_);
    for (std::size_t row = 0; row < adapters_.size(); ++row) {
        if (adapters_[row] || isLate(*layout_.rows[row].setting))
            continue;
        adapters_[row] = makeAdapter(static_cast<int>(row));
        // What a row is joined to is found among the binder's children.
        if (adapters_[row])
            adapters_[row]->setParent(this);
    }
    handles_.clear();
    for (const Distance& rule : values_.table().all<Distance>()) {
        if (!rule.slider)
            continue;
        auto* slider = qobject_cast<VLK_DblSlider2*>(forms_.find(rule.slider, rule.numbers));
        Q_ASSERT_X(slider, "slider", rule.slider.tail);
        if (slider)
            handles_.push_back(std::make_unique<HandlesAdapter>(*this, rule, slider));
    }
    ruled_.clear();
    for (const Enable& rule : values_.table().all<Enable>()) {
        const QString form = numberedName(rule.targets.form(), rule.numbers);
        for (const QString& name : targetNames(rule)) {
            QWidget* widget = forms_.find(form, name, rule.numbers.outer);
            Q_ASSERT_X(widget || forms_.isLate(form), "enable", qPrintable(name));
            if (widget)
                ruled_.add(widget, forms_.labelOf(widget), rule);
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
    Q_EMIT joined();
}

void Binder::dress()
{
    const Showing showing(showing_);
    for (const auto& adapter : adapters_) {
        if (adapter)
            adapter->dress();
    }
    for (const RangeWhen& rule : values_.table().all<RangeWhen>())
        ranges_[rule.path.row] = rangeOf(rule.path.row);
    for (const ExclusiveChoice& rule : values_.table().all<ExclusiveChoice>())
        ranges_[rule.path.row] = rangeOf(rule.path.row);
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
        for (const ExclusiveChoice& rule : values_.table().all<ExclusiveChoice>())
            dressRanged(rule.path.row);
    }
    evaluateRules();
}

void Binder::showRow(int row)
{
    if (adapters_[row] && !std::ranges::binary_search(stay_, row))
        adapters_[row]->show(values_.value(row));
}

void Binder::evaluateRules()
{
    for (const Doubt& rule : values_.table().all<Doubt>()) {
        if (adapters_[rule.path.row])
            adapters_[rule.path.row]->doubt(
                values_.holds(rule.when) ? QCoreApplication::translate("vlk", rule.complaint) : QString());
    }
    ruled_.evaluate();
}

void Binder::edited(int row, const QString& value)
{
    if (isShowing())
        return;
    const std::vector<int> changed = values_.edit(row, value);
    {
        const Showing showing(showing_);
        // Ranges may follow another value.
        for (const int other : changed) {
            for (const RangeWhen* rule : layout_.rows[other].follows)
                dressRanged(rule->path.row);
            for (const ExclusiveChoice* sharer : layout_.rows[other].sharers)
                dressRanged(sharer->path.row);
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
        Q_EMIT this->changed(layout_.rows[other].path);
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

void Binder::takeBackNews()
{
    for (const auto& [row, name] : std::exchange(told_, {}))
        qCWarning(lcRetyped).noquote() << name;
}

std::map<int, QStringList> Binder::news() const
{
    std::map<int, QStringList> told;
    for (const auto& adapter : adapters_) {
        QStringList all = adapter ? adapter->news() : QStringList();
        all.removeAll(QString());
        if (!all.isEmpty())
            told[adapter->row()] = all;
    }
    return told;
}

// Told every time: what is written is not what was wanted, as long as the field is marked.
void Binder::logNews()
{
    const std::map<int, QStringList> told = news();
    std::erase_if(told_, [&](const auto& earlier) {
        const bool isOver = !told.contains(earlier.first);
        if (isOver)
            qCWarning(lcRetyped).noquote() << earlier.second;
        return isOver;
    });
    for (const auto& [row, all] : told) {
        const QString& name = told_[row] = review::placeText(review::wordsOf(layout_, row));
        for (const QString& news : all)
            qCWarning(lcTyping).noquote() << name + QStringLiteral(": ") + news;
    }
}

std::vector<Binder::Place> Binder::placesOf(int row) const
{
    const Setting& setting = values_.setting(row);
    const Numbers numbers = setting.base().numbers;
    std::vector<Place> places;
    const auto add = [&](QWidget* widget, int part) {
        if (widget)
            places.push_back({widget, part});
    };
    const auto find = [&](const Name& name) { return forms_.find(name, numbers); };
    const Shown* shown = setting.shown();
    if (QWidget* whole = shown ? find(shown->widget) : nullptr) {
        add(whole, -1);
        QHash<QString, QWidget*> boxes;
        const auto* mask = setting.as<Mask>();
        for (QWidget* box : mask ? whole->findChildren<QWidget*>() : QList<QWidget*>())
            boxes.insert(box->objectName(), box);
        for (std::size_t part = 0; mask && part < mask->fields.size(); ++part) {
            const MaskField& field = mask->fields[part];
            add(boxes.value(numberedName(field.widget, field.number)), static_cast<int>(part));
        }
    }
    std::visit(
        [&](const auto& kind) {
            int part = 0;
            if constexpr (std::is_same_v<std::decay_t<decltype(kind)>, Digits>) {
                for (const Position& position : kind.positions) {
                    add(find(position.widget), part);
                    add(find(position.box), part++);
                }
            } else if constexpr (requires { kind.companion; }) {
                if (kind.companion)
                    add(forms_.find(numberedName(kind.widget.form(), numbers),
                                    numberedName(kind.companion, numbers), numbers.outer),
                        -1);
            } else if constexpr (requires { eachBox(kind, find); }) {
                eachBox(kind, [&](const Name& name) { add(find(name), -1); });
            }
        },
        setting.kind);
    return places;
}

QWidget* Binder::widgetOf(int row, int part) const
{
    const std::vector<Place> places = placesOf(row);
    const auto found = std::ranges::find(places, part, &Place::part);
    if (found != places.end())
        return found->widget;
    return places.empty() ? nullptr : places.front().widget;
}

void Binder::forget()
{
    takeBackNews();
    for (const auto& adapter : adapters_) {
        if (adapter) {
            adapter->forget();
            adapter->forgetTyping();
        }
    }
}

void Binder::putBack(const std::vector<QString>& held)
{
    for (const auto& adapter : adapters_) {
        const int row = adapter ? adapter->row() : -1;
        const int holder = row < 0 ? row : values_.holder(row);
        if (row < 0)
            continue;
        QStringList news = adapter->news();
        news.removeAll(QString());
        if (!news.isEmpty() && held[holder] == values_.held()[holder])
            stay_.push_back(row);
        else
            adapter->forget();
    }
    values_.putBack(held);
    show();
    stay_.clear();
}

void Binder::selectFirstItems()
{
    for (const auto& adapter : adapters_) {
        if (const auto* choice = dynamic_cast<ChoiceAdapter*>(adapter.get()))
            set(choice->row(), choice->firstItem());
    }
}

} // namespace vlk
