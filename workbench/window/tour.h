#pragma once

// The tour: the workbench does its main job without a person and leaves its files and pictures in a folder.
// It is a list of steps that run one after another until one fails; tour.txt tells what each did.
//
// A step drives the windows as a person would, by the names of their widgets, and fails by throwing a
// TourFailure with a text that says what was missing or wrong.

#include "window/workbench_window.h"

#include <QDir>

#include <functional>
#include <optional>
#include <stdexcept>
#include <vector>

class QAbstractButton;
class QFileDialog;

namespace workbench {

struct TourFailure : std::runtime_error
{
    explicit TourFailure(const QString& what) : std::runtime_error(what.toStdString()) {}
};

class Tour
{
public:
    struct Step
    {
        QString name;
        std::function<void(Tour&)> act;
    };

    // The folder is made when it does not exist.
    Tour(WorkbenchWindow& window, const QString& folder);

    void add(const std::vector<Step>& steps);
    // True when every step did what it should.
    bool run();

    WorkbenchWindow& window() { return window_; }
    const QDir& folder() const { return folder_; }

    // A line for tour.txt and the terminal.
    void note(const QString& line);
    // Runs the event loop until the condition holds; fails the step after the time.
    void waitFor(const std::function<bool()>& condition, const QString& what, int ms = 10'000);
    // Acts on the next modal dialog of the class, which a step opens and which holds it up; it has to close
    // it.
    template <class Dialog>
    void whenModal(std::function<void(Dialog&)> act)
    {
        whenActive([act = std::move(act)](QWidget* modal) {
            auto* dialog = qobject_cast<Dialog*>(modal);
            if (dialog)
                act(*dialog);
            return dialog != nullptr;
        });
    }
    // The visible button of a name; fails the step when it is disabled.
    static void press(const char* button);
    // What a person does with the keyboard: types over what the field holds and ends that with Tab or Enter,
    // and checks a box with the space bar.
    static void type(QWidget* field, const QString& text, Qt::Key end);
    static void check(QAbstractButton* box, bool on);
    // Types the name into a dialog of Qt's own and accepts it; what is to be saved replaces an earlier file.
    static void giveName(QFileDialog& dialog, const QString& path);
    static void expect(bool condition, const QString& otherwise);
    static void expectOpened(const Sentence& failure);
    // Leaves files in the folder.
    void save(const QString& name, const QByteArray& content);
    void picture(const QString& name, QWidget* widget);

    // The visible widget of a name in any window; fails the step when there is none.
    template <class Widget>
    static Widget* find(const char* name)
    {
        auto* widget = qobject_cast<Widget*>(findVisible(name));
        if (!widget)
            throw TourFailure(
                QStringLiteral("no visible %1 named %2")
                    .arg(QLatin1String(Widget::staticMetaObject.className()), QLatin1String(name)));
        return widget;
    }
    // Null when there is none.
    static QWidget* findVisible(const char* name);

private:
    // Offers every modal dialog until one is taken.
    void whenActive(const std::function<bool(QWidget*)>& take);
    void throwFailureInModal();

    WorkbenchWindow& window_;
    QDir folder_;
    std::vector<Step> steps_;
    QString notes_;
    std::optional<TourFailure> failureInModal_;
};

} // namespace workbench
