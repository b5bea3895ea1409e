#include "window/plugin_log.h"

#include <QScopedValueRollback>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <iterator>
#include <mutex>

namespace vlk {

namespace {

struct CategoryRow
{
    const char* category;
    PluginLog::Topic topic;
};

constexpr CategoryRow rows[] = {
    {"vlk.save", PluginLog::Topic::SaveFailed},
    {"vlk.save.part", PluginLog::Topic::SavedInPart},
    {"vlk.settings.typing", PluginLog::Topic::Typing},
};

std::mutex guard; // of theLog, while another thread posts to it
PluginLog* theLog = nullptr;
std::atomic<QtMessageHandler> before = nullptr;

} // namespace

PluginLog::PluginLog(QObject* parent) : QObject(parent)
{
    const std::scoped_lock lock(guard);
    theLog = this;
    before = qInstallMessageHandler(&PluginLog::listen);
}

PluginLog::~PluginLog()
{
    {
        const std::scoped_lock lock(guard);
        theLog = nullptr;
    }
    // Who came later stays, and goes on passing to listen(), which passes on.
    const QtMessageHandler last = qInstallMessageHandler(before);
    if (last != &PluginLog::listen)
        qInstallMessageHandler(last);
}

void PluginLog::listen(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    // A handler that stayed on top of an earlier instance leads back here.
    thread_local bool passing = false;
    if (passing)
        return;
    // Null while this one is being installed.
    if (const QtMessageHandler next = before) {
        const QScopedValueRollback pass(passing, true);
        next(type, context, message);
    }
    if (type != QtWarningMsg || context.category == nullptr)
        return;
    const auto row = std::find_if(std::begin(rows), std::end(rows), [&context](const CategoryRow& known) {
        return std::strcmp(known.category, context.category) == 0;
    });
    if (row == std::end(rows))
        return;
    std::unique_lock lock(guard);
    PluginLog* log = theLog;
    if (log == nullptr)
        return;
    const auto tell = [log, row, message] {
        Q_EMIT log->warned(row->topic, QLatin1String(row->category), message);
    };
    if (QThread::currentThread() != log->thread()) {
        QMetaObject::invokeMethod(log, tell, Qt::QueuedConnection);
        return;
    }
    // Only this thread ends the log.
    lock.unlock();
    tell();
}

} // namespace vlk
