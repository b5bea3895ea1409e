#pragma once

// Marks on the fields of a window. A mark is a shape of 10 pixels at the field's caption, in a colour that
// follows the lightness of the window; an invalid field is outlined too. Where there is no room beside a
// caption, nor in the margin of what stands around it, the shape stands in the field's upper left corner, so
// that nothing moves.
//
// What a mark says stands in the tool tip and in the accessible description of its field. A field may be
// marked for several reasons at a time: the worst one gives the shape, the texts are all told.

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QString>

#include <optional>

class QPainter;
class QPalette;
class QWidget;

namespace vlk {

// From the least to the worst.
enum class Mark { Right, Changed, Advice, Invalid };

enum class MarkReason { Typing, Value, Changed, Advice };

// An empty text takes the mark of that reason away.
void markField(QWidget* field, MarkReason reason, Mark mark, const QString& text);

// While another value is typed, what is told of the one that the field has is not shown.
void setTyping(QWidget* field, bool isTyping);

// For marks that stand elsewhere: the colour, and the shape at the painter's origin.
inline constexpr int kMarkSize = 10;
QColor markColor(Mark mark, const QPalette& palette);
// For words that say what is wrong (kept_palette.h).
QPalette withInvalidText(QPalette palette);
void paintMark(QPainter& painter, Mark mark, const QPalette& palette);
// The mark with sides of that many pixels, for a screen of that ratio.
QPixmap markPixmap(Mark mark, const QPalette& palette, int side, qreal ratio);
// For a line of a list, also one that is selected.
QIcon markIcon(Mark mark, const QPalette& palette);
// For the tab of a page, whose bar has icons of kMarkSize; without a mark it keeps the place of one.
QIcon tabMark(std::optional<Mark> mark, const QPalette& palette);

} // namespace vlk
