#pragma once

// Asks for the two data folders of the plug-in: telemetry and configurations. One that no file can be put
// into is refused with its reason; an empty one stands for the workbench's own.

#include <QDialog>

namespace vlk {
class NoticeBar;
}
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

    void accept() override;

private:
    QLineEdit* addFolder(QFormLayout* form, const char* name, const char* key, const QString& folder);

    vlk::NoticeBar* bar_;
    QLineEdit* telemetry_;
    QLineEdit* configurations_;
};

} // namespace workbench
