#include "review/report_file.h"

#include "base/translated.h"
#include "xml/xml_document.h"

#include <QFileInfo>

namespace vlk::review {

FileReportText reportOfFile(const QString& path, const QString& before, const QStringList& about,
                            const ReportChoice& choice)
{
    const ComparedFiles files = comparedFiles(before, path);
    if (files.outcome != Comparison::Done)
        return {files.outcome, {}};
    XmlDocument document(configurationText(path), QStringLiteral("DEVICE"));
    const QStringList lines = QStringList(translated("rev_223").arg(QFileInfo(path).fileName())) + about;
    return {
        Comparison::Done,
        toHtml(files.after, reportOf(files.after, files.differences,
                                     advise(files.after, FileState::ofDocument(*document.root()).unread()),
                                     lines, choice))};
}

} // namespace vlk::review
