#include "window/plugin_log.h"

#include "typing/file_error.h"
#include "window/languages.h"
#include "window/trouble_text.h"

#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QThread>

#include <atomic>
#include <cstring>
#include <mutex>

namespace workbench {

namespace {

// How a message is written: what it captures goes into the text in this order.
constexpr const char* kWhole = "^(.*)$";
constexpr const char* kNotMade = "^cannot make (.*) : (.*)$";
constexpr const char* kNotOpened = "^cannot open (.*) : (.*)$";
constexpr const char* kOfFile = "^(.*?): (.*)$";
constexpr const char* kAtByte = "^(.*): .* at byte (\\d+), (\\d+) bytes$";
constexpr const char* kOfPeriod = "^(.*): (\\d+) of (\\d+) records, until (.*)$";

struct CategoryRow
{
    const char* category;
    PluginLog::Topic topic;
    const char* text; // key
    const char* message;
};

// Where a category has several, the first whose form the message has.
constexpr CategoryRow kCategoryRows[] = {
    {"vlk.save", PluginLog::Topic::SaveFailed, "wb_save_failed_why", kOfFile},
    {"vlk.save.part", PluginLog::Topic::SavedInPart, "wb_saved_part", kOfPeriod},
    {"vlk.save.volumes", PluginLog::Topic::SavedCut, "wb_740", kOfFile},
    {"vlk.save.unsaved", PluginLog::Topic::Damage, "wb_told_unsaved", kOfFile},
    {"vlk.unsaved.kept", PluginLog::Topic::Damage, "rev_330", "^(\\d+) changes are kept: $"},
    {"vlk.unsaved.kept", PluginLog::Topic::Damage, "rev_260", "^(\\d+) changes are kept: (.+)$"},
    {"vlk.unsaved.lost", PluginLog::Topic::Damage, "rev_501", "^(\\d+) changes are lost: : (.+)$"},
    {"vlk.unsaved.lost", PluginLog::Topic::Damage, "rev_500", "^(\\d+) changes are lost: (.+): (.+)$"},
    {"vlk.unsaved.found", PluginLog::Topic::Damage, "rev_295", "^changes of ([\\d.: ]+?): $"},
    {"vlk.unsaved.found", PluginLog::Topic::Damage, "rev_294", "^changes of ([\\d.: ]+?): (.+)$"},
    {"vlk.unsaved.written", PluginLog::Topic::Written, "wb_told_written", "^changes are written: (.*)$"},
    {"vlk.configuration.saved", PluginLog::Topic::Saved, "wb_saved_changes",
     "^(.*): (\\d[\\d+]*) since opened$"},
    {"vlk.configuration.saved", PluginLog::Topic::Saved, "wb_saved_since_written",
     "^(.*): (\\d[\\d+]*) since written$"},
    {"vlk.settings.typing", PluginLog::Topic::Typing, "wb_typed", kWhole},
    {"vlk.settings.retyped", PluginLog::Topic::Retyped, "wb_told_retyped", kWhole},
    {"vlk.xml", PluginLog::Topic::File, "wb_told_not_made", kNotMade},
    {"vlk.xml", PluginLog::Topic::File, "wb_told_unreadable", kNotOpened},
    {"vlk.xml", PluginLog::Topic::File, "wb_told_no_document", "^(.*) is not a document$"},
    {"vlk.xml", PluginLog::Topic::File, "wb_told_document", kWhole},
    {"vlk.fuel", PluginLog::Topic::File, "wb_told_unreadable", kNotOpened},
    {"vlk.fuel", PluginLog::Topic::File, "wb_told_fuel_large", "^(.*) is too large for a calibration table$"},
    {"vlk.fuel", PluginLog::Topic::File, "wb_told_fuel_none", "^(.*) holds no calibration table$"},
    {"vlk.fuel", PluginLog::Topic::File, "wb_told_fuel_rows", "^the document holds more rows"},
    {"vlk.fuel", PluginLog::Topic::File, "wb_told_fuel", kWhole},
    {"vlk.files.unreadable", PluginLog::Topic::File, "wb_told_unreadable", kOfFile},
    {"vlk.files.missing", PluginLog::Topic::File, "wb_told_missing", kOfFile},
    {"vlk.files.empty", PluginLog::Topic::File, "wb_told_empty", kOfFile},
    {"vlk.files.form", PluginLog::Topic::Damage, "wb_told_form", kAtByte},
    {"vlk.files.header", PluginLog::Topic::Damage, "wb_told_header", kAtByte},
    {"vlk.files.damage", PluginLog::Topic::Damage, "wb_told_damage", kAtByte},
    {"vlk.files.cut", PluginLog::Topic::Damage, "wb_told_cut", kAtByte},
    {"vlk.files.checksum", PluginLog::Topic::Damage, "wb_told_checksum", kAtByte},
    {"vlk.files.count", PluginLog::Topic::Damage, "wb_told_count", kAtByte},
    {"vlk.files.lines", PluginLog::Topic::Damage, "rec_662", kAtByte},
    {"vlk.track", PluginLog::Topic::File, "wb_told_no_distances", "^no distances: (.*)$"},
};

QRegularExpressionMatch matched(const CategoryRow& row, const QString& message)
{
    return QRegularExpression(QLatin1String(row.message), QRegularExpression::DotMatchesEverythingOption)
        .match(message);
}

// The last row of a category where the message has none of its forms.
const CategoryRow* rowOf(const char* category, const QString& message)
{
    const CategoryRow* found = nullptr;
    for (const CategoryRow& row : kCategoryRows) {
        if (std::strcmp(row.category, category) != 0)
            continue;
        found = &row;
        if (matched(row, message).hasMatch())
            break;
    }
    return found;
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
    const CategoryRow* row = rowOf(category.toLatin1().constData(), message);
    return row ? matched(*row, message).capturedTexts().mid(1) : QStringList();
}

QString PluginLog::words(const QString& category, const QString& message)
{
    const CategoryRow* row = rowOf(category.toLatin1().constData(), message);
    if (!row)
        return {};
    QString said = text(row->text);
    const QStringList found = parts(category, message);
    // A text needs not use all of them. The path comes last, because it may look like a place for another.
    for (int i = found.size(); i > 0; --i) {
        bool isNumber = false;
        const qint64 value = found[i - 1].toLongLong(&isNumber);
        said.replace(QLatin1Char('%') + QString::number(i),
                     isNumber ? number(value) : vlk::fileErrorText(found[i - 1]));
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
    if (type != QtWarningMsg || !context.category)
        return;
    const CategoryRow* row = rowOf(context.category, message);
    if (!row)
        return;
    std::unique_lock lock(guard);
    PluginLog* log = theLog;
    if (!log)
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

} // namespace workbench
