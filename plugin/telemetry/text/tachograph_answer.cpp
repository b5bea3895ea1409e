#include "telemetry/text/tachograph_answer.h"

#include "base/translated.h"
#include "telemetry/text/tachograph_layout.h"
#include "telemetry/text/time_text.h"

#include <QtEndian>

#include <algorithm>

namespace vlk {

namespace tachograph {

namespace {

// Up to the first zero byte.
QString escapedText(const QByteArray& bytes)
{
    return QString::fromLocal8Bit(bytes.constData(),
                                  static_cast<int>(qstrnlen(bytes.constData(), bytes.size())))
        .toHtmlEscaped();
}

quint32 number(const QByteArray& bytes)
{
    quint32 value = 0;
    std::copy_n(bytes.constData(), std::min<std::size_t>(bytes.size(), sizeof value),
                reinterpret_cast<char*>(&value));
    return qFromLittleEndian(value);
}

QString stateText(const Field& field, quint32 value)
{
    return value < std::size(field.states->values) ? translated(field.states->values[value])
                                                   : QString::number(value);
}

QString valueText(const Field& field, const QByteArray& bytes)
{
    quint32 value = number(bytes);
    if (field.part != Part::Whole)
        value = field.part == Part::LowBits ? value & 0x0F : value >> 4;
    switch (field.shape) {
    case Shape::Number:
        return QString::number(value);
    case Shape::State:
        return stateText(field, value);
    case Shape::Time:
        return localTimeText(value);
    case Shape::Text:
        break;
    }
    return escapedText(bytes);
}

QString fieldLine(const Field& field, const QByteArray& bytes)
{
    QString caption = translated(field.states ? field.states->title : field.key);
    if (field.numbered == Numbered::WithSign)
        caption += QLatin1Char(' ') + translated("abbr_047");
    if (field.numbered != Numbered::No)
        caption += QLatin1Char(' ') + QString::number(field.number);
    const QLatin1String colon(field.colon ? ":" : "");
    return QStringLiteral("%1%2 <b>%3</b>").arg(caption, colon, valueText(field, bytes));
}

QString statusLine(const QuestionLayout& layout, int kind, quint8 status)
{
    QString caption = translated(layout.statusKey);
    if (layout.statusTellsKind)
        caption += QString::number(kind);
    const QString text = status == kStatusOk            ? QStringLiteral("Ok")
                         : status == kStatusUnavailable ? QStringLiteral("n/a")
                         : status == kStatusNoLink      ? translated("tmiw_051")
                                                        : QString::number(status);
    return QStringLiteral("<b>%1: %2</b>").arg(caption, text);
}

TachographAnswer questionAnswer(const QuestionLayout& layout, int kind, const QByteArray& answer)
{
    TachographAnswer result;
    result.subject = TachographAnswer::Subject::Question;
    if (answer.size() <= kStatusAt)
        return result;
    result.lines << statusLine(layout, kind, static_cast<quint8>(answer[kStatusAt]));
    for (const Field& field : layout.fields) {
        const QByteArray bytes = answer.mid(field.at, field.width);
        // A text may have lost its end, a number makes no sense then.
        if (bytes.size() == field.width || (field.shape == Shape::Text && !bytes.isEmpty()))
            result.lines << fieldLine(field, bytes);
    }
    return result;
}

QString fileStateText(quint8 code)
{
    const QString hex = QString::number(code, 16).toUpper();
    const auto* row = std::ranges::find(kFileStates, code, &FileState::code);
    if (row == std::end(kFileStates))
        return QStringLiteral("<b>(0x%1)</b>").arg(hex);
    QString text = translated(row->key) + QLatin1String(row->stop);
    if (row->addition)
        text += QLatin1Char(' ') + translated(row->addition) + QLatin1String(row->stop);
    return QStringLiteral("<b>(0x%1) %2</b>").arg(hex, text);
}

TachographAnswer fileAnswer(const QByteArray& answer, const QDateTime& time)
{
    TachographAnswer result;
    result.subject = TachographAnswer::Subject::File;
    if (answer.size() <= kStatusAt)
        return result;
    const auto code = static_cast<quint8>(answer[kStatusAt]);
    const QString clock = time.toString(QStringLiteral("hh:mm:ss"));
    result.lines << QStringLiteral("[%1] %2: %3").arg(clock, translated("tmiw_098"), fileStateText(code));
    if (code == kFileReady) {
        const QByteArray name = answer.mid(kFileNameAt, kFileNameBytes);
        result.readyFile = QString::fromLocal8Bit(name.constData());
    }
    if (const QByteArray count = answer.mid(kFileCountAt, sizeof(quint32)); count.size() == sizeof(quint32))
        result.lines << QStringLiteral("[%1] %2: <b>%3</b> %4")
                            .arg(clock, translated("tmiw_118"))
                            .arg(number(count))
                            .arg(translated("wrd_016"));
    return result;
}

} // namespace

} // namespace tachograph

TachographAnswer tachographAnswer(const QByteArray& answer, const QDateTime& time)
{
    using namespace tachograph;
    if (answer.size() <= kKindAt)
        return {};
    const auto kind = static_cast<quint8>(answer[kKindAt]);
    if (kind == kFileKind)
        return fileAnswer(answer, time);
    const auto* layout = std::ranges::find_if(kQuestionLayouts, [&](const QuestionLayout& layout) {
        return std::ranges::find(layout.kinds, kind) != std::end(layout.kinds);
    });
    return layout == std::end(kQuestionLayouts) ? TachographAnswer{} : questionAnswer(*layout, kind, answer);
}

QString tachographFetchedLine(bool done)
{
    return done ? QStringLiteral("<b>%1</b>").arg(translated("tmiw_047"))
                : QStringLiteral("<b>-=%1=-</b>").arg(translated("tmiw_048"));
}

} // namespace vlk
