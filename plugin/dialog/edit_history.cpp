#include "dialog/edit_history.h"

#include "review/setting_words.h"

#include <QUndoCommand>

#include <algorithm>
#include <numeric>
#include <utility>

namespace vlk {

class EditHistory::Step : public QUndoCommand
{
public:
    Step(EditHistory& history, std::vector<Part> parts, Words words, bool isPlain, int before, int after)
        : history_(history), parts_(std::move(parts)), words_(std::move(words)), isPlain_(isPlain),
          before_(before), after_(after)
    {
    }

    QString words() const { return words_(); }

    // The row of the page that the step began with; none where it left this one as it was.
    std::optional<int> moverOf(int page, int row) const
    {
        const auto is = [&](const Part& part) { return part.page == page && part.row == row; };
        if (std::ranges::none_of(parts_, is))
            return {};
        return isPlain_ && parts_.front().page == page ? parts_.front().row : -1;
    }

    int id() const override { return isPlain_ ? 1 : -1; }
    // An edit of the same setting, which has not been left for another one.
    bool mergeWith(const QUndoCommand* command) override
    {
        const auto& later = static_cast<const Step&>(*command);
        const Part& first = parts_.front();
        const Part& same = later.parts_.front();
        if (first.page != same.page || first.row != same.row)
            return false;
        for (const Part& part : later.parts_) {
            const auto known = std::ranges::find_if(
                parts_, [&](const Part& own) { return own.page == part.page && own.row == part.row; });
            if (known == parts_.end())
                parts_.push_back(part);
            else
                known->after = part.after;
        }
        setObsolete(std::ranges::all_of(parts_, [](const Part& part) { return part.before == part.after; }));
        return true;
    }
    void undo() override { history_.putBack(parts_, &Part::before, before_); }
    void redo() override
    {
        // The stack does what it takes; the first time it is done already.
        if (std::exchange(isDone_, true))
            history_.putBack(parts_, &Part::after, after_);
    }

private:
    EditHistory& history_;
    std::vector<Part> parts_;
    const Words words_;
    const bool isPlain_;
    const int before_;
    const int after_;
    bool isDone_ = false;
};

EditHistory::EditHistory(Windows windows, QObject* parent) : QObject(parent), windows_(std::move(windows))
{
    over_.setSingleShot(true);
    connect(&over_, &QTimer::timeout, this, &EditHistory::settle);
}

void EditHistory::watch(PageSettings& page)
{
    const int place = static_cast<int>(pages_.size());
    pages_.push_back(&page);
    known_.push_back(page.values().held());
    connect(&page, &PageSettings::changed, this, [this, place](const QString& path) { note(place, path); });
}

void EditHistory::close()
{
    isBusy_ = true;
    over_.stop();
    edited_.clear();
    steps_.clear();
}

void EditHistory::begin()
{
    close();
    isBusy_ = false;
    for (std::size_t page = 0; page < pages_.size(); ++page)
        known_[page] = pages_[page]->values().held();
    knownWindow_ = windows_.current();
    Q_EMIT changed(allPages());
}

void EditHistory::note(int page, const QString& path)
{
    if (isBusy_)
        return;
    if (edited_.isEmpty())
        firstPath_ = path;
    if (!edited_.contains(page))
        edited_ << page;
    over_.start();
}

QVector<int> EditHistory::allPages() const
{
    QVector<int> all(static_cast<int>(pages_.size()));
    std::iota(all.begin(), all.end(), 0);
    return all;
}

std::vector<EditHistory::Part> EditHistory::partsOf(const QVector<int>& pages) const
{
    std::vector<Part> parts;
    for (const int page : pages) {
        const std::vector<QString>& now = pages_[page]->values().held();
        for (std::size_t row = 0; row < now.size(); ++row) {
            if (now[row] != known_[page][row])
                parts.push_back({page, static_cast<int>(row), known_[page][row], now[row]});
        }
    }
    return parts;
}

void EditHistory::settle()
{
    over_.stop();
    const QVector<int> pages = std::exchange(edited_, {});
    if (pages.isEmpty())
        return;
    std::vector<Part> parts = partsOf(pages);
    if (parts.empty())
        return;
    const PageSettings* page = pages_[pages.first()];
    const int row = page->rowAt(firstPath_);
    const auto first = std::ranges::find_if(
        parts, [&](const Part& part) { return part.page == pages.first() && part.row == row; });
    // An edit that only moved others along is joined with no other.
    const bool isPlain = first != parts.end();
    if (isPlain)
        std::swap(parts.front(), *first);
    const TableLayout& layout = pages_[parts.front().page]->values().layout();
    const Words words = [&layout, at = parts.front().row] {
        return review::placeText(review::wordsOf(layout, at));
    };
    push(std::move(parts), words, isPlain);
}

void EditHistory::keepState()
{
    settle();
    // The stack joins no step with one that ends at its clean state.
    steps_.setClean();
}

void EditHistory::asOne(const Words& words, const std::function<void()>& change)
{
    settle();
    isBusy_ = true;
    change();
    isBusy_ = false;
    std::vector<Part> parts = partsOf(allPages());
    if (!parts.empty() || windows_.current() != knownWindow_)
        push(std::move(parts), words, false);
}

void EditHistory::push(std::vector<Part> parts, const Words& words, bool isPlain)
{
    QVector<int> pages;
    for (const Part& part : parts) {
        known_[part.page][part.row] = part.after;
        if (!pages.contains(part.page))
            pages << part.page;
    }
    const int before = std::exchange(knownWindow_, windows_.current());
    steps_.push(new Step(*this, std::move(parts), words, isPlain, before, knownWindow_));
    Q_EMIT changed(pages);
}

void EditHistory::putBack(const std::vector<Part>& parts, QString Part::*side, int window)
{
    isBusy_ = true;
    QVector<int> pages;
    for (const Part& part : parts) {
        known_[part.page][part.row] = part.*side;
        if (!pages.contains(part.page))
            pages << part.page;
    }
    // What a page shows may move another one along, which is then shown once more.
    for (int round = 0; round < 2; ++round) {
        for (std::size_t page = 0; page < pages_.size(); ++page)
            pages_[page]->putBack(known_[page]);
    }
    if (window != knownWindow_)
        windows_.show(window);
    knownWindow_ = window;
    isBusy_ = false;
    moved_ = {pages, parts.empty() ? Part{-1, -1, {}, {}} : parts.front()};
}

void EditHistory::move(void (QUndoStack::*step)())
{
    settle();
    moved_.reset();
    (steps_.*step)();
    if (!moved_)
        return;
    const auto [pages, first] = *moved_;
    Q_EMIT changed(pages);
    if (first.page >= 0)
        Q_EMIT stepped(first.page, first.row,
                       pages_[first.page]->values().held()[first.row] == first.before ? first.after
                                                                                      : first.before);
}

void EditHistory::undo()
{
    move(&QUndoStack::undo);
}

void EditHistory::redo()
{
    move(&QUndoStack::redo);
}

QString EditHistory::textOf(int step) const
{
    const auto* command = static_cast<const Step*>(steps_.command(step));
    return command ? command->words() : QString();
}

QString EditHistory::undoText() const
{
    return textOf(steps_.index() - 1);
}

QString EditHistory::redoText() const
{
    return textOf(steps_.index());
}

int EditHistory::moverOf(int page, int row) const
{
    for (int step = steps_.index() - 1; step >= 0; --step) {
        if (const auto mover = static_cast<const Step*>(steps_.command(step))->moverOf(page, row))
            return *mover;
    }
    return -1;
}

} // namespace vlk
