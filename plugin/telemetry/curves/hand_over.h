#pragma once

// What curves and track give to others: a picture as a file or on paper, and a table. Success and failure are
// told on the bar of the window.

#include "base/replace_file.h"

#include <QObject>
#include <QSize>

#include <functional>

class QPainter;
class QPrinter;
class QTextDocument;
class QWidget;

namespace vlk {

class NoticeBar;
struct TimeSpan;

// Paints the picture into that many pixels from the painter's origin on.
using PaintPicture = std::function<void(QPainter& painter, const QSize& size)>;

// Paints what is between two moments into that many pixels.
using PaintSpan = std::function<void(QPainter& painter, const QSize& size, const TimeSpan& span)>;

// Pixels of an image to each point of the picture, across and down.
inline constexpr int kPicturePixels = 2;

class HandOver : public QObject
{
    Q_OBJECT

public:
    // Without a bar nothing is told.
    HandOver(QWidget* window, NoticeBar* bar);

    // By the suffix of the path: as SVG, as PNG otherwise.
    void savePicture(const QString& path, const PaintPicture& paint);
    void saveTable(const QString& path, const WriteContent& write);
    // That a file is there which was saved elsewhere.
    void tellSaved(const QString& path);

    // Ask where; the names get a suffix of their own.
    void askPicture(const QString& proposed, const PaintPicture& paint);
    void askTable(const QString& proposed, const WriteContent& write);
    void print(const PaintPicture& paint);
    // `write` fills the document when it is sure to be printed.
    void print(const std::function<void(QTextDocument& document)>& write);

private:
    // False where the user gave it up.
    bool askPrinter(QPrinter& printer);
    void tellPrinted(const QPrinter& printer);
    void save(const QString& path, const WriteContent& write);
    QString askPath(const QString& proposed, const QStringList& suffixes);

    QWidget* window_;
    NoticeBar* bar_;
};

// With a font in pixels, as on screen: a printer would make many of its pixels of the points of a font.
void paintInPixels(QPainter& painter, const PaintPicture& paint, const QSize& size);

// On white, whatever the windows look like.
QPalette paperPalette();

} // namespace vlk
