#pragma once

// Curves of the records on show, with two cursors; a part of the window of records.

#include "telemetry/curves/curve_presets.h"

#include <QWidget>

class QComboBox;
class QIODevice;
class QLabel;
class QPushButton;
class QToolButton;

namespace vlk {

class BandsStrip;
class CurveLegend;
class CurvesModel;
class CurvesPlot;
class HandOver;
class NoticeBar;
class ShownRecords;
struct TimeSpan;

class CurvesView : public QWidget
{
    Q_OBJECT

public:
    // `bar`: the window's, which tells what was handed over; null tells nothing.
    explicit CurvesView(ShownRecords* records, QWidget* parent = nullptr, NoticeBar* bar = nullptr);
    ~CurvesView() override;

    // What stands above a picture, the vehicle or the file.
    void setTitle(const QString& title);
    // A picture of the span.
    void paint(QPainter& painter, const QSize& size, const TimeSpan& span) const;
    // What is in sight: as CSV, SVG or PNG by the suffix.
    void saveTo(const QString& path);
    // False where there is no cursor B.
    bool endCursorB();
    void retranslate();
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fillPresets();
    void showPreset(int index);
    void showUseful(int preset);
    // Keeps what is shown now as what the user chose: a preset, or -1.
    void keepChosen(int preset);
    // False where nothing of it can be shown.
    int chosenPreset() const;
    void choose();
    void refresh();
    void fit();
    void fitStates();
    void fitLegend();
    int roomForStates() const;
    void keepInSight(int record);
    void askPicture();
    void askTable();
    void paintInSight(QPainter& painter, const QSize& size) const;
    bool write(QIODevice& device) const;

    ShownRecords* records_;
    CurvesModel* model_;
    HandOver* handOver_;
    QComboBox* presets_;
    QPushButton* choose_;
    QToolButton* cursorA_;
    QToolButton* cursorB_;
    QPushButton* handOverMenu_;
    CurveLegend* legend_;
    CurveLegend* longLegend_; // in its place where it is too narrow
    CurvesPlot* plot_;
    BandsStrip* strip_;
    QLabel* line_;
    QToolButton* allStates_;
    QString title_;
    CurvePreset chosen_; // by the user; empty for none
};

} // namespace vlk
