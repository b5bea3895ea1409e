#pragma once

// Pictures in a document that goes to a printer. They are painted there, so that their lines stay lines
// however fine the paper is, and are as wide as the text of an A4 page.

#include "telemetry/curves/hand_over.h"

#include <QTextCursor>
#include <QTextObjectInterface>

#include <vector>

namespace vlk {

class TextPictures : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    // Belongs to the document.
    explicit TextPictures(QTextDocument* document);

    // Where the cursor is. `size`: in which the picture is painted.
    void insert(QTextCursor& cursor, const PaintPicture& paint, const QSize& size);

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
                    const QTextFormat& format) override;

private:
    struct Picture
    {
        PaintPicture paint;
        QSize size;
    };

    const Picture& pictureOf(const QTextFormat& format) const;

    std::vector<Picture> pictures_;
};

} // namespace vlk
