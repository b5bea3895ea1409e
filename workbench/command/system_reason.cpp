#include "command/system_reason.h"

#include "command/file_names.h"
#include "window/languages.h"

#include <QHash>

#include <algorithm>
#include <cerrno>
#include <iterator>

namespace workbench::command {

namespace {

struct ReasonRow
{
    int code;
    const char* key;
};

constexpr ReasonRow kReasons[] = {
    {ENOENT, "cli_150"}, {EACCES, "cli_151"},  {EPERM, "cli_151"},        {ENOSPC, "cli_152"},
    {EDQUOT, "cli_152"}, {EROFS, "cli_153"},   {EISDIR, "cli_154"},       {ENOTDIR, "cli_155"},
    {ELOOP, "cli_156"},  {EIO, "cli_157"},     {ENAMETOOLONG, "cli_158"}, {EMFILE, "cli_159"},
    {EFBIG, "cli_160"},  {ETXTBSY, "cli_161"}, {EBADF, "cli_330"},
};

const QHash<QString, QString>& texts()
{
    static const QHash<QString, QString> texts = [] {
        QHash<QString, QString> made;
        for (const ReasonRow& row : kReasons)
            made.insert(qt_error_string(row.code), text(row.key));
        return made;
    }();
    return texts;
}

} // namespace

QString systemReason(const QString& said)
{
    const auto known = texts().constFind(said);
    return known == texts().constEnd() ? systemText(said) : *known;
}

QString systemReason(int error)
{
    const auto* row = std::ranges::find(kReasons, error, &ReasonRow::code);
    return row == std::end(kReasons) ? systemText(qt_error_string(error)) : text(row->key);
}

void keepReasons()
{
    texts();
}

} // namespace workbench::command
