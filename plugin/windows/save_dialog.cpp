#include "windows/save_dialog.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QRegularExpression>

namespace vlk {

namespace {

// "gpx" and "txt" are; "2026" and "2 report" are not.
bool isEnding(const QString& suffix)
{
    static const QRegularExpression ending(QStringLiteral("^[A-Za-z][A-Za-z0-9]{0,6}$"));
    return ending.match(suffix).hasMatch();
}

} // namespace

SaveDialog::SaveDialog(QWidget* parent, const QString& caption, const QString& path, const QString& filter,
                       const QString& suffix)
    : QFileDialog(parent, caption, path, filter)
{
    setAcceptMode(AcceptSave);
    setDefaultSuffix(suffix);
}

QString SaveDialog::ask()
{
    return exec() == Accepted ? selectedFiles().value(0) : QString();
}

void SaveDialog::accept()
{
    // Without any point in the name the toolkit adds it. A dialog of the system has no such field.
    if (auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))) {
        const QFileInfo typed(directory(), name->text());
        if (!typed.suffix().isEmpty() && !isEnding(typed.suffix()) && !typed.isDir())
            name->setText(name->text() + QLatin1Char('.') + defaultSuffix());
    }
    QFileDialog::accept();
}

} // namespace vlk
