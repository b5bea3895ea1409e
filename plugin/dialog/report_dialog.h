#pragma once

// The report of the configuration in the windows: what it tells, a look at it, and out to a printer or a
// file.

#include <QDialog>

#include <functional>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QTextBrowser;

namespace vlk {

class ConfigurationReview;
class NoticeBar;

// Lines that say what the configuration is of: of the attached tracker, of a file, or a new one.
QStringList aboutConfiguration(const ConfigurationReview& review, const QString& file, bool isOfTracker);

class ReportDialog : public QDialog
{
    Q_OBJECT

public:
    // `about`: aboutConfiguration().
    ReportDialog(const ConfigurationReview& review, std::function<QStringList()> about, QWidget* parent);

    void retranslate();

protected:
    // Makes the report anew, without passwords.
    void showEvent(QShowEvent* event) override;

private:
    void refresh();
    void print();
    void save(const char* kind, const QString& suffix,
              QByteArray (*content)(const QString& html, bool isOnePage));

    const ConfigurationReview& review_;
    const std::function<QStringList()> about_;
    QString html_;
    NoticeBar* bar_;
    QLabel* of_;
    QComboBox* contents_;
    QCheckBox* onePage_;
    QCheckBox* secrets_;
    QTextBrowser* preview_;
    QPushButton* print_;
    QPushButton* pdf_;
    QPushButton* saveHtml_;
    QPushButton* close_;
};

} // namespace vlk
