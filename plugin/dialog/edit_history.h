#pragma once

// The steps in which a configuration has been edited, to be taken back and done again: what one edit pulls
// along, on other pages too, is one step, and so are edits of one setting in a row. A step keeps the rows
// that it changed, so that whatever made it, taking it back brings the same bytes of a file back.

#include "windows/binder/page_settings.h"

#include <QTimer>
#include <QUndoStack>

#include <functional>
#include <optional>
#include <vector>

namespace vlk {

class EditHistory : public QObject
{
    Q_OBJECT

public:
    using Words = std::function<QString()>; // in the language on show
    // Which of the windows is on show goes with a step.
    struct Windows
    {
        std::function<int()> current;
        std::function<void(int)> show;
    };

    explicit EditHistory(Windows windows, QObject* parent = nullptr);

    // In the order in which a save takes them. The page outlives the history or is never asked again.
    void watch(PageSettings& page);
    const std::vector<PageSettings*>& pages() const { return pages_; }

    // Other values are coming, up to begin(): there are no steps, and nothing is an edit.
    void close();
    // What the pages hold now is the beginning; there are no steps yet.
    void begin();
    // What has been edited since the last step becomes one. Done by itself when an edit is over.
    void settle();
    // What was written or saved is a state to come back to: an edit behind it is a step of its own, even
    // where it changes the setting that was edited last.
    void keepState();
    // Whatever it changes is one step.
    void asOne(const Words& words, const std::function<void()>& change);

    void undo();
    void redo();
    // What they would do, empty without a step.
    QString undoText() const;
    QString redoText() const;
    // The row of the page by whose edit this row was moved last; its own where that was edited itself, and -1
    // where it was moved by none or by a step that no single edit began.
    int moverOf(int page, int row) const;

Q_SIGNALS:
    // Pages, by their place, hold other values than before; steps can be other ones, too.
    void changed(const QVector<int>& pages);
    // A step was taken back or done again that began with this edit; `other` is what the row was worth until
    // then.
    void stepped(int page, int row, const QString& other);

private:
    struct Part
    {
        int page, row;
        QString before, after;
    };
    class Step;

    void note(int page, const QString& path);
    std::vector<Part> partsOf(const QVector<int>& pages) const;
    void push(std::vector<Part> parts, const Words& words, bool isPlain);
    // Tells of the step when it is over: only then the stack knows the next ones.
    void move(void (QUndoStack::*step)());
    void putBack(const std::vector<Part>& parts, QString Part::*side, int window);
    QString textOf(int step) const;
    QVector<int> allPages() const;

    const Windows windows_;
    std::vector<PageSettings*> pages_;
    std::vector<std::vector<QString>> known_; // what the pages held after the last step
    int knownWindow_ = 0;
    QVector<int> edited_; // since then, the first one first
    QString firstPath_;   // of the edit that began it
    bool isBusy_ = false;
    QTimer over_;
    std::optional<std::pair<QVector<int>, Part>> moved_; // pages and first part of the step just done
    QUndoStack steps_;
};

} // namespace vlk
