#pragma once

// The track of the records on show; a part of the window of records.

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace vlk {

class HandOver;
class NoticeBar;
class ShownRecords;
class TrackCanvas;
class TrackModel;
struct TimeSpan;

class TrackView : public QWidget
{
    Q_OBJECT

public:
    // `bar`: the window's, which tells what was handed over; null tells nothing.
    explicit TrackView(ShownRecords* records, QWidget* parent = nullptr, NoticeBar* bar = nullptr);

    // What stands above a picture, the vehicle or the file.
    void setTitle(const QString& title);
    // The part of the track in that span, as a picture; pale, where that is but a place, how the vehicle came
    // there and left.
    void paint(QPainter& painter, const QSize& size, const TimeSpan& span) const;
    // What that picture shows, and of what time.
    QString caption(const TimeSpan& span) const;
    // What is in sight, as SVG or PNG by the suffix.
    void saveTo(const QString& path);
    void retranslate();

private:
    void fillColumns();
    void showColumn(int index);
    void showPlace();
    void paintInSight(QPainter& painter, const QSize& size) const;

    ShownRecords* records_;
    TrackModel* model_;
    HandOver* handOver_;
    QLabel* columnsLabel_;
    QComboBox* columns_;
    QCheckBox* spanOnly_;
    QPushButton* fit_;
    QPushButton* handOverMenu_;
    TrackCanvas* canvas_;
    QLabel* place_;
    QString title_;
};

} // namespace vlk
