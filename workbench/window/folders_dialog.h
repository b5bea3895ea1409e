#pragma once

// Asks for the two data folders of the plug-in: telemetry and configurations.

#include <QDialog>

class QFormLayout;
class QLineEdit;

namespace workbench {

class FoldersDialog : public QDialog
{
    Q_OBJECT

public:
    FoldersDialog(const QString& telemetry, const QString& configurations, QWidget* parent = nullptr);

    QString telemetry() const;
    QString configurations() const;

private:
    QLineEdit* addFolder(QFormLayout* form, const char* name, const char* key, const QString& folder);

    QLineEdit* telemetry_;
    QLineEdit* configurations_;
};

} // namespace workbench
