#include "window/plugin_log.h"

#include "window/languages.h"
#include "window/trouble_text.h"

#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <iterator>
#include <mutex>

namespace vlk {

namespace {

// How a message is written: what it captures goes into the text in this order.
constexpr const char* whole = "^(.*)$";
constexpr const char* ofFile = "^(.*?): (.*)$";
constexpr const char* atByte = "^(.*): .* at byte (\\d+), (\\d+) bytes$";
constexpr const char* ofPeriod = "^(.*): (\\d+) of (\\d+) records, until (.*)$";

struct CategoryRow
{
    const char* category;
    PluginLog::Topic topic;
    const char* text; // key
    const char* message;
};

constexpr CategoryRow rows[] = {
    {"vlk.save", PluginLog::Topic::SaveFailed, "wb_save_failed_why", ofFile},
    {"vlk.save.part", PluginLog::Topic::SavedInPart, "wb_saved_part", ofPeriod},
    {"vlk.settings.typing", PluginLog::Topic::Typing, "wb_typed", whole},
    {"vlk.xml", PluginLog::Topic::File, "wb_told_document", whole},
    {"vlk.fuel", PluginLog::Topic::File, "wb_told_fuel", whole},
    {"vlk.files.unreadable", PluginLog::Topic::File, "wb_told_unreadable", ofFile},
    {"vlk.files.missing", PluginLog::Topic::File, "wb_told_missing", ofFile},
    {"vlk.files.empty", PluginLog::Topic::File, "wb_told_empty", ofFile},
    {"vlk.files.form", PluginLog::Topic::Damage, "wb_told_form", atByte},
    {"vlk.files.header", PluginLog::Topic::Damage, "wb_told_header", atByte},
    {"vlk.files.damage", PluginLog::Topic::Damage, "wb_told_damage", atByte},
    {"vlk.files.cut", PluginLog::Topic::Damage, "wb_told_cut", atByte},
    {"vlk.files.checksum", PluginLog::Topic::Damage, "wb_told_checksum", atByte},
    {"vlk.files.count", PluginLog::Topic::Damage, "wb_told_count", atByte},
};

const CategoryRow* rowOf(const char* category)
{
    const auto row = std::find_if(std::begin(rows), std::end(rows), [category](const CategoryRow& known) {
        return std::strcmp(known.category, category) == 0;
    });
    return row == std::end(rows) ? nullptr : row;
}

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

QStringList PluginLog::parts(const QString& category, const QString& message)
{
    const CategoryRow* row = rowOf(category.toLatin1().constData());
    if (row == nullptr)
        return {};
    const QRegularExpression pattern(QLatin1String(row->message),
                                     QRegularExpression::DotMatchesEverythingOption);
    return pattern.match(message).capturedTexts().mid(1);
}

QString PluginLog::words(const QString& category, const QString& message)
{
    const CategoryRow* row = rowOf(category.toLatin1().constData());
    if (row == nullptr)
        return {};
    QString said = vlk::text(row->text);
    const QStringList found = parts(category, message);
    // A text needs not use all of them. The path comes last, because it may look like a place for another.
    for (int i = found.size(); i > 0; --i) {
        bool isNumber = false;
        const qint64 value = found[i - 1].toLongLong(&isNumber);
        said.replace(QLatin1Char('%') + QString::number(i), isNumber ? vlk::number(value) : found[i - 1]);
    }
    return said;
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
    const CategoryRow* row = rowOf(context.category);
    if (row == nullptr)
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
