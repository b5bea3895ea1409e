#pragma once

// What an adapter needs of the binder: the values, the forms, and where an edit goes.

#include "settings/values.h"

namespace vlk {

class BoundForms;

class Edits
{
public:
    virtual ~Edits() = default;

    virtual const Values& values() const = 0;
    virtual const BoundForms& forms() const = 0;
    // While values are shown the widgets' signals are no edits.
    virtual bool isShowing() const = 0;
    // An edit that a widget of the row shows already, and one that comes from elsewhere.
    virtual void edited(int row, const QString& value) = 0;
    virtual void set(int row, const QString& value) = 0;
};

} // namespace vlk
