#pragma once

// What every settings page has: its table, the values, the binder to its widgets, its title and its place
// among the tabs. A page forwards its operations here and adds what is its own.

#include "windows/binder/binder.h"

#include <initializer_list>
#include <memory>
#include <vector>

struct CXmlSection;

namespace vlk {

class PageSettings : public QObject
{
    Q_OBJECT

public:
    // `title` is a translation key.
    PageSettings(const SettingsTable& table, const char* title);
    ~PageSettings() override;

    // Joins the widgets of forms to the rows, once the widgets are there.
    void bind(std::initializer_list<QWidget*> forms);
    // `numbered`: forms of one class, of which the first holds the widgets of the rows with number 1, and so
    // on.
    void bind(QWidget* page, const std::vector<QWidget*>& numbered);

    // Joins a form that comes later, and shows the values in it.
    void join(QWidget* form);

    QString title() const { return title_; }
    int tabIndex() const { return tabIndex_; }
    void setTabIndex(int index) { tabIndex_ = index; }

    void setDefaults();
    // `root` is the element DEVICE.
    void load(CXmlSection* root);
    void save(CXmlSection* root);
    void retranslate();
    // For a save that leaves the windows: into a file or for the tracker.
    void logNews() { binder_->logNews(); }
    void takeBackNews() { binder_->takeBackNews(); }

    // Paths are those below the section. Who asks often keeps the row, for values(); -1 for a path that the
    // table has not.
    int rowAt(const QString& path) const { return values_.rowAt(path); }
    QString value(const QString& path) const { return values_.value(path); }
    int number(const QString& path) const { return value(path).toInt(); }
    void edit(const QString& path, const QString& value);
    // Values of earlier (Values::held()), which no rule changes.
    void putBack(const std::vector<QString>& held);
    void selectFirstItems() { binder_->selectFirstItems(); }

    const Values& values() const { return values_; }
    Binder& binder() { return *binder_; }

Q_SIGNALS:
    // An edit of the user, or what a rule made of it.
    void changed(const QString& path);
    // Other values are on show after a load, a reset or a change of language.
    void shown();

private:
    void showAll();
    // Shows other values than those that the user has edited so far.
    void showOthers();

    const char* const titleKey_;
    Values values_;
    std::unique_ptr<Binder> binder_;
    QString title_;
    int tabIndex_ = -1;
};

} // namespace vlk
