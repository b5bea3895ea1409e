#include "typing/file_error.h"

#include <QCoreApplication>

#include <cerrno>

namespace vlk {

namespace {

struct ErrorRow
{
    int code;
    const char* text; // key
};

constexpr ErrorRow kErrors[] = {
    {EACCES, "tmiw_271"}, {EPERM, "tmiw_271"},  {ENOSPC, "tmiw_272"},       {EDQUOT, "tmiw_272"},
    {EROFS, "tmiw_273"},  {ENOENT, "tmiw_274"}, {ENOTDIR, "tmiw_314"},      {EFBIG, "tmiw_275"},
    {EIO, "tmiw_276"},    {EISDIR, "tmiw_277"}, {ENAMETOOLONG, "tmiw_278"},
};

} // namespace

QString fileErrorText(const QString& systemText)
{
    QString text = systemText;
    for (const ErrorRow& row : kErrors)
        text.replace(qt_error_string(row.code), QCoreApplication::translate("vlk", row.text));
    return text;
}

} // namespace vlk
