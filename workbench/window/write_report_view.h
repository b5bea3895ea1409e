#pragma once

// Shows what became of the last configuration on its way to the tracker: in a sentence, setting by setting,
// and what can be done about it. The same widget stands in the main window and in the dialog that comes up
// over the configuration window.

#include "road/road_report.h"
#include "window/key_texts.h"
#include "window/sentence.h"
#include "window/write_report_model.h"

#include <QWidget>

#include <optional>
#include <utility>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QTableView;
class QToolButton;

namespace workbench {

class HostSession;
class SettingColumns;

class WriteReportView : public QWidget
{
    Q_OBJECT

public:
    explicit WriteReportView(HostSession& session, QWidget* parent = nullptr);

    // The report of the last write that got to the tracker can be called back as long as the ones after it
    // did not.
    void setReport(const RoadReport& report);
    void retranslate();

    // The view in a dialog of its own that deletes itself when it is closed.
    static void showDialog(HostSession& session, const RoadReport& report, QWidget* parent);

Q_SIGNALS:
    // A button that puts something on the road again was pressed.
    void leaving();

private:
    QPushButton* addButton(const char* name, Sentence (WriteReportView::*act)());
    Sentence tryAgain();
    Sentence bringBack();
    Sentence showOther();
    void show(const RoadReport& report);
    void tellAnew(RoadReport& report) const;
    void buildTable();
    void showSummary();

    HostSession& session_;
    WriteReportModel model_;
    KeyTexts texts_;
    RoadReport report_;
    // The last report of a write, while one of none is on show; or the other way round.
    std::optional<RoadReport> other_;
    QLabel* symbol_;
    QLabel* summary_;
    QLabel* time_;
    QToolButton* copy_;
    QTableView* table_;
    SettingColumns* columns_ = nullptr;
    QLabel* backup_;
    QHBoxLayout* buttons_;
    QPushButton* again_;
    QPushButton* back_;
    QPushButton* otherReport_;
};

} // namespace workbench
