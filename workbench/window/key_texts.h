#pragma once

// The texts of a window by key, each said once: binding a key to a widget sets its text now, and apply()
// sets all of them again in the language in use.

#include "window/languages.h"

#include <functional>
#include <vector>

namespace workbench {

class KeyTexts
{
public:
    // The object must live as long as this.
    template <class Object>
    Object* bind(Object* object, const char* key)
    {
        bind([object, key] {
            if constexpr (requires { object->setText(QString()); })
                object->setText(text(key));
            else if constexpr (requires { object->setTitle(QString()); })
                object->setTitle(text(key));
            else
                object->setWindowTitle(text(key));
        });
        return object;
    }

    void bind(std::function<void()> set)
    {
        set();
        setters_.push_back(std::move(set));
    }

    void apply() const
    {
        for (const auto& set : setters_)
            set();
    }

private:
    std::vector<std::function<void()>> setters_;
};

} // namespace workbench
