#include "telemetry/fuel_view/text_pictures.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextDocument>

namespace vlk {

namespace {

constexpr int kPicture = QTextFormat::UserObject + 1;
constexpr int kPlace = QTextFormat::UserProperty + 1; // among all

constexpr double kTextWidth = 610; // pixels of the screen

} // namespace

TextPictures::TextPictures(QTextDocument* document) : QObject(document)
{
    document->documentLayout()->registerHandler(kPicture, this);
}

void TextPictures::insert(QTextCursor& cursor, const PaintPicture& paint, const QSize& size)
{
    QTextCharFormat format;
    format.setObjectType(kPicture);
    format.setProperty(kPlace, static_cast<int>(pictures_.size()));
    pictures_.push_back({paint, size});
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
}

const TextPictures::Picture& TextPictures::pictureOf(const QTextFormat& format) const
{
    return pictures_[static_cast<std::size_t>(format.intProperty(kPlace))];
}

QSizeF TextPictures::intrinsicSize(QTextDocument* /*document*/, int /*position*/, const QTextFormat& format)
{
    const QSizeF size = pictureOf(format).size;
    return size * (kTextWidth / size.width());
}

void TextPictures::drawObject(QPainter* painter, const QRectF& place, QTextDocument* /*document*/,
                              int /*position*/, const QTextFormat& format)
{
    const Picture& picture = pictureOf(format);
    painter->save();
    painter->translate(place.topLeft());
    painter->scale(place.width() / picture.size.width(), place.height() / picture.size.height());
    paintInPixels(*painter, picture.paint, picture.size);
    painter->restore();
}

} // namespace vlk
