#include "window/tour.h"

#include "base/whole_file.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QThread>
#include <QTimer>

#include <cstdio>

namespace workbench {

namespace {

void giveKeyboard(QWidget* widget)
{
    // On a screen of several programs another one may have it.
    widget->window()->activateWindow();
    QApplication::setActiveWindow(widget->window());
    widget->setFocus(Qt::TabFocusReason);
    Tour::expect(QApplication::focusWidget() == widget,
                 QStringLiteral("%1 does not take the keyboard").arg(widget->objectName()));
}

void strike(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {})
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        if (QWidget* widget = QApplication::focusWidget())
            QApplication::sendEvent(widget, &event);
    }
}

} // namespace

Tour::Tour(WorkbenchWindow& window, const QString& folder) : window_(window), folder_(folder)
{
    folder_.mkpath(QStringLiteral("."));
    // Whatever screen there is, pictures are taken at one size.
    window_.resize(1024, 600);
}

void Tour::add(const std::vector<Step>& steps)
{
    steps_.insert(steps_.end(), steps.begin(), steps.end());
}

bool Tour::run()
{
    bool good = true;
    for (const Step& step : steps_) {
        try {
            step.act(*this);
            throwFailureInModal();
            note(QStringLiteral("ok      %1").arg(step.name));
        } catch (const TourFailure& failure) {
            note(QStringLiteral("FAILED  %1: %2").arg(step.name, QString::fromStdString(failure.what())));
            good = false;
            // What it leaves open would ask about its rows when the workbench ends, and nobody is there to
            // answer.
            for (QWidget* left : QApplication::topLevelWidgets())
                left->setVisible(left == &window_);
            break;
        }
    }
    try {
        save(QStringLiteral("tour.txt"), notes_.toUtf8());
    } catch (const TourFailure& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        good = false;
    }
    return good;
}

void Tour::note(const QString& line)
{
    notes_ += line + QLatin1Char('\n');
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

void Tour::waitFor(const std::function<bool()>& condition, const QString& what, int ms)
{
    QElapsedTimer timer;
    timer.start();
    constexpr int pauseMs = 10;
    while (!condition()) {
        throwFailureInModal();
        if (timer.hasExpired(ms))
            throw TourFailure(QStringLiteral("%1 did not come within %2 ms").arg(what).arg(ms));
        QCoreApplication::processEvents(QEventLoop::AllEvents, pauseMs);
        QThread::msleep(pauseMs);
    }
    QCoreApplication::processEvents();
}

void Tour::whenActive(const std::function<bool(QWidget*)>& take)
{
    constexpr int pauseMs = 20;
    constexpr int mostMs = 60'000;
    auto* timer = new QTimer(&window_);
    QElapsedTimer since;
    since.start();
    QObject::connect(timer, &QTimer::timeout, timer, [this, timer, take, since] {
        QWidget* modal = QApplication::activeModalWidget();
        timer->stop();
        // An exception must not pass the event loop of the dialog.
        try {
            if (!take(modal)) {
                // A window that nobody expects would wait for an answer without end.
                expect(!since.hasExpired(mostMs), QStringLiteral("another window is open: %1")
                                                      .arg(modal ? modal->windowTitle() : QString()));
                return timer->start();
            }
        } catch (const TourFailure& failure) {
            failureInModal_ = failure;
            if (modal)
                modal->close();
        }
        timer->deleteLater();
    });
    timer->start(pauseMs);
}

void Tour::throwFailureInModal()
{
    if (failureInModal_)
        throw TourFailure(*std::exchange(failureInModal_, std::nullopt));
}

void Tour::press(const char* button)
{
    auto* found = find<QAbstractButton>(button);
    expect(found->isEnabled(), QStringLiteral("%1 is disabled").arg(QLatin1String(button)));
    found->click();
}

void Tour::type(QWidget* field, const QString& text, Qt::Key end)
{
    giveKeyboard(field);
    strike(Qt::Key_A, {}, Qt::ControlModifier);
    for (const QChar sign : text)
        strike(sign.toUpper().unicode(), sign);
    strike(end);
}

void Tour::check(QAbstractButton* box, bool on)
{
    giveKeyboard(box);
    if (box->isChecked() != on)
        strike(Qt::Key_Space, QStringLiteral(" "));
}

void Tour::giveName(QFileDialog& dialog, const QString& path)
{
    auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    expect(edit, QStringLiteral("the file dialog is not Qt's own"));
    // A file of an earlier tour would be asked about.
    if (dialog.acceptMode() == QFileDialog::AcceptSave)
        QFile::remove(path);
    edit->setText(path);
    QMetaObject::invokeMethod(&dialog, "accept");
}

void Tour::expectOpened(const Sentence& failure)
{
    expect(!failure, failure ? failure() : QString());
}

void Tour::expect(bool condition, const QString& otherwise)
{
    if (!condition)
        throw TourFailure(otherwise);
}

void Tour::save(const QString& name, const QByteArray& content)
{
    QSaveFile file(folder_.filePath(name));
    if (!vlk::saveWhole(file, content))
        throw TourFailure(QStringLiteral("cannot write %1: %2").arg(file.fileName(), file.errorString()));
}

void Tour::picture(const QString& name, QWidget* widget)
{
    // Nested layouts settle one level a pass.
    for (int pass = 0; pass < 8; ++pass)
        QCoreApplication::processEvents();
    const QString path = folder_.filePath(name);
    if (!widget->grab().save(path))
        throw TourFailure(QStringLiteral("cannot write %1").arg(path));
}

QWidget* Tour::findVisible(const char* name)
{
    const QString wanted = QLatin1String(name);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->objectName() == wanted)
            return window;
        for (QWidget* widget : window->findChildren<QWidget*>(wanted)) {
            if (widget->isVisible())
                return widget;
        }
    }
    return nullptr;
}

} // namespace workbench
