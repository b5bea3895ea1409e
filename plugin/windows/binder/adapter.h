#pragma once

// Joins one setting to the widgets that show it. There is one adapter a kind of widget; the binder makes
// them, tells them what to show and takes their edits. Values are texts of the file.

#include "windows/binder/edits.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

class QWidget;

namespace vlk {

class Adapter;

// What an adapter is made of. Each kind of row has two functions beside its adapter: adapterFor(), which
// makes it, and inputOf(), the widget that a form made from rows gets for it; null where several show a
// value.
struct Joint
{
    Edits& edits;
    int row;
    std::function<QWidget*(const Name&)> find;

    template <class Widget>
    Widget* findAs(const Name& name) const
    {
        return qobject_cast<Widget*>(find(name));
    }
};

std::unique_ptr<Adapter> adapterFor(const IsStructure auto&, const Joint&)
{
    return nullptr;
}
QWidget* inputOf(const IsStructure auto&)
{
    return nullptr;
}

class Adapter : public QObject
{
    Q_OBJECT

public:
    Adapter(Edits& edits, int row);

    int row() const { return row_; }
    // Texts, ranges and items from the row, in the present language.
    virtual void dress() = 0;
    virtual void show(const QString& value) = 0;
    // Other values come, which are not those that the user left: what was remembered of them goes.
    virtual void forget() {}
    // Takes what is being typed into the widgets.
    virtual void finishTyping() {}
    // What was typed last and not taken as it was, and what is doubtful about the value; empty texts where
    // there is nothing.
    virtual QStringList news() const { return {}; }
    // Marks the value as doubtful; an empty text takes the mark away.
    virtual void doubt(const QString& /*complaint*/) {}
    // The value as the widgets hold it.
    virtual QString held() const = 0;

protected:
    const Shown& shown() const { return *values().setting(row_).shown(); }
    const Values& values() const { return edits_.values(); }
    // Hands a value to the binder, which ignores it while it shows values itself.
    void edited(const QString& value);
    // The caption goes to the label of the widget, to the widget itself if it has a text, and else to screen
    // readers alone.
    void caption(QWidget* widget, const QString& suffix = {});
    // Sets another caption than the row's.
    void caption(QWidget* widget, const char* key, const char* format, const QString& suffix = {});

    Edits& edits_;

private:
    const int row_;
};

} // namespace vlk
