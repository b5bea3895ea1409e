#include "telemetry/curves/hand_over.h"

#include "base/file_name.h"
#include "base/translated.h"
#include "link/device.h"
#include "telemetry/shown/records_notices.h"
#include "typing/file_error.h"
#include "typing/notice_bar.h"
#include "windows/save_dialog.h"

#include <QApplication>
#include <QBuffer>
#include <QDesktopWidget>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QSvgGenerator>
#include <QTextDocument>

namespace vlk {

namespace {

constexpr QSize kPictureSize(1200, 600);

QByteArray svgOf(const PaintPicture& paint)
{
    QBuffer buffer;
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setResolution(QApplication::desktop()->logicalDpiX()); // as of the widgets that are painted
    svg.setSize(kPictureSize);
    svg.setViewBox(QRect(QPoint(), kPictureSize));
    QPainter painter(&svg);
    paintInPixels(painter, paint, kPictureSize);
    painter.end();
    return buffer.data();
}

QByteArray pngOf(const PaintPicture& paint)
{
    QImage image(kPictureSize * kPicturePixels, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(kPicturePixels, kPicturePixels);
    paintInPixels(painter, paint, kPictureSize);
    painter.end();
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

} // namespace

void paintInPixels(QPainter& painter, const PaintPicture& paint, const QSize& size)
{
    QFont font = QApplication::font();
    font.setPixelSize(QFontInfo(font).pixelSize());
    painter.setFont(font);
    paint(painter, size);
}

HandOver::HandOver(QWidget* window, NoticeBar* bar) : QObject(window), window_(window), bar_(bar) {}

void HandOver::save(const QString& path, const WriteContent& write)
{
    QString reason;
    if (replaceFile(path, write, &reason))
        return tellSaved(path);
    if (bar_)
        bar_->tell(HandedOverNotice, [shown = QDir::toNativeSeparators(path), reason] {
            return Notice{Mark::Invalid, translated("rec_171").arg(shown, fileErrorText(reason)), {}};
        });
}

void HandOver::tellSaved(const QString& path)
{
    if (bar_)
        bar_->tellNews(HandedOverNotice, [shown = QDir::toNativeSeparators(QDir::cleanPath(path))] {
            return Notice{Mark::Right, translated("rec_170").arg(shown), {}};
        });
}

void HandOver::savePicture(const QString& path, const PaintPicture& paint)
{
    const bool isSvg = path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
    const QByteArray picture = isSvg ? svgOf(paint) : pngOf(paint);
    save(path, [&](QIODevice& device) { return device.write(picture) == picture.size(); });
}

void HandOver::saveTable(const QString& path, const WriteContent& write)
{
    save(path, write);
}

QString HandOver::askPath(const QString& proposed, const QStringList& suffixes)
{
    QStringList filters;
    for (const QString& suffix : suffixes)
        filters << QStringLiteral("%1 (*.%2)").arg(suffix.toUpper(), suffix);
    const QDir folder(vlkDevice ? vlkDevice->tmiFolder() : QString());
    const QString name = asFileName(proposed, QStringLiteral("-")) + QLatin1Char('.') + suffixes.front();
    SaveDialog dialog(window_, translated("wrd_028"), folder.path(), {}, suffixes.front());
    dialog.setObjectName(QStringLiteral("fileDialog_Told")); // by the bar: the host need not
    dialog.setNameFilters(filters);
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
        dialog.setDefaultSuffix(suffixes.value(filters.indexOf(filter), suffixes.front()));
    });
    dialog.selectFile(name);
    return dialog.ask();
}

void HandOver::askPicture(const QString& proposed, const PaintPicture& paint)
{
    const QString path = askPath(proposed, {QStringLiteral("png"), QStringLiteral("svg")});
    if (!path.isEmpty())
        savePicture(path, paint);
}

void HandOver::askTable(const QString& proposed, const WriteContent& write)
{
    const QString path = askPath(proposed, {QStringLiteral("csv")});
    if (!path.isEmpty())
        saveTable(path, write);
}

bool HandOver::askPrinter(QPrinter& printer)
{
    QPrintDialog dialog(&printer, window_);
    return dialog.exec() == QDialog::Accepted;
}

void HandOver::tellPrinted(const QPrinter& printer)
{
    if (!bar_)
        return;
    if (printer.printerState() == QPrinter::Error)
        return bar_->tell(HandedOverNotice, [] { return Notice{Mark::Invalid, translated("rec_172"), {}}; });
    bar_->tellNews(HandedOverNotice, [file = QDir::toNativeSeparators(printer.outputFileName())] {
        return Notice{
            Mark::Right, file.isEmpty() ? translated("rec_464") : translated("rec_170").arg(file), {}};
    });
}

void HandOver::print(const PaintPicture& paint)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    if (!askPrinter(printer))
        return;
    QPainter painter;
    if (painter.begin(&printer)) {
        // The picture as it is on a screen, as large as the page.
        const QRect page = painter.viewport();
        const double scale = std::min(static_cast<double>(page.width()) / kPictureSize.width(),
                                      static_cast<double>(page.height()) / kPictureSize.height());
        painter.scale(scale, scale);
        paintInPixels(painter, paint, kPictureSize);
        painter.end();
    }
    tellPrinted(printer);
}

void HandOver::print(const std::function<void(QTextDocument& document)>& write)
{
    QPrinter printer;
    if (!askPrinter(printer))
        return;
    QTextDocument document;
    write(document);
    document.print(&printer);
    tellPrinted(printer);
}

QPalette paperPalette()
{
    QPalette palette(Qt::black, QColor(0xf0f0f0), Qt::white, Qt::darkGray, Qt::gray, Qt::black, Qt::white,
                     Qt::white, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(0x1f5f9e));
    return palette;
}

} // namespace vlk
