#include "check/configuration_check.h"

#include <QRegularExpression>
#include <QTextCodec>
#include <QXmlStreamReader>

#include <algorithm>
#include <cctype>

namespace workbench {

namespace {

using Problem = ConfigurationProblem;

// Deeper than any configuration goes.
constexpr int kDeepest = 32;

// This reader takes declarations that the plug-in's does not, such as one with two encodings.
bool declarationIsPlain(const QByteArray& document)
{
    constexpr int longest = 256;
    static const QRegularExpression plain(
        QStringLiteral("^\\x{feff}?(<\\?xml\\s+version\\s*=\\s*(['\"])1\\.[0-9]\\2"
                       "(\\s+encoding\\s*=\\s*(['\"])[A-Za-z][A-Za-z0-9._-]*\\4)?"
                       "(\\s+standalone\\s*=\\s*(['\"])(yes|no)\\6)?\\s*\\?>|(?!<\\?xml))"));
    const QByteArray start = document.left(longest);
    const QTextCodec* codec = QTextCodec::codecForUtfText(start, QTextCodec::codecForName("ISO-8859-1"));
    return plain.match(codec->toUnicode(start)).hasMatch();
}

// Readers compare each attribute of an element with all the others: a tag of megabytes would hold them for
// minutes. Tags of a configuration have below a hundred equals signs.
bool tagsAreShort(const QByteArray& document)
{
    constexpr int most = 4000;
    int signs = 0;
    for (const char sign : document) {
        signs = sign == '<' ? 0 : signs + (sign == '=');
        if (signs > most)
            return false;
    }
    return true;
}

// This reader takes blanks in "&#10 ;".
bool referencesArePlain(const QByteArray& document)
{
    for (int at = document.indexOf("&#"); at >= 0; at = document.indexOf("&#", at + 1)) {
        const bool hex = document.mid(at + 2, 1) == "x";
        int end = at + (hex ? 3 : 2);
        while (end < document.size() && (hex ? std::isxdigit(static_cast<uchar>(document[end]))
                                             : std::isdigit(static_cast<uchar>(document[end]))))
            ++end;
        if (end >= document.size() || document[end] != ';')
            return false;
    }
    return true;
}

// This reader takes more signs in a name than the plug-in's does.
bool isPlainName(const QStringRef& name)
{
    return std::ranges::all_of(
        name, [](QChar sign) { return sign.isLetter() || QStringView(u"0123456789_-.:").contains(sign); });
}

class Check
{
public:
    Check(const QByteArray& document, const QString& model)
        : xml_(document), model_(model), bytes_(document.size())
    {
        // The names of a configuration may hold any sign; a colon in one begins no namespace.
        xml_.setNamespaceProcessing(false);
    }

    std::optional<Problem> run()
    {
        while (!xml_.atEnd()) {
            switch (xml_.readNext()) {
            case QXmlStreamReader::StartElement:
                if (++depth_ > kDeepest || !namesArePlain())
                    return at(Problem::Damaged);
                if (depth_ == 1)
                    lookAtRoot();
                break;
            case QXmlStreamReader::EndElement:
                --depth_;
                break;
            case QXmlStreamReader::DTD:
            case QXmlStreamReader::ProcessingInstruction:
                // Declarations could expand without bound, so no reader of ours takes them; instructions to
                // programs belong to another kind of document.
                return at(Problem::Damaged);
            default:
                break;
            }
        }
        if (xml_.error() == QXmlStreamReader::PrematureEndOfDocumentError)
            return at(Problem::CutShort);
        if (xml_.hasError())
            return at(Problem::Damaged);
        // A document that is cut short or damaged is not reported as foreign.
        return foreign_;
    }

private:
    Problem at(Problem::Kind kind, const QString& found = {}) const
    {
        return {kind, bytes_, xml_.lineNumber(), std::max(qint64{1}, xml_.columnNumber()), found};
    }

    bool namesArePlain() const
    {
        const QXmlStreamAttributes attributes = xml_.attributes();
        return isPlainName(xml_.qualifiedName()) &&
               std::ranges::all_of(attributes, [](const QXmlStreamAttribute& attribute) {
                   return isPlainName(attribute.qualifiedName());
               });
    }

    void lookAtRoot()
    {
        const QString model = xml_.attributes().value(QLatin1String("model")).toString();
        if (xml_.name() != QLatin1String("DEVICE"))
            foreign_ = at(Problem::ForeignRoot, xml_.name().toString());
        else if (!model.isEmpty() && model != model_)
            foreign_ = at(Problem::ForeignModel, model);
    }

    QXmlStreamReader xml_;
    QString model_;
    qint64 bytes_;
    int depth_ = 0;
    std::optional<Problem> foreign_;
};

} // namespace

std::optional<Problem> checkConfiguration(const QByteArray& document, const QString& model)
{
    if (document.trimmed().isEmpty())
        return Problem{Problem::Empty, document.size(), 1, 1, {}};
    if (document.size() > kLargestConfiguration)
        return Problem{Problem::TooLarge, document.size(), 1, 1, {}};
    if (!tagsAreShort(document))
        return Problem{Problem::Damaged, document.size(), 1, 1, {}};
    auto problem = Check(document, model).run();
    if ((!problem || problem->kind == Problem::ForeignRoot || problem->kind == Problem::ForeignModel) &&
        !(declarationIsPlain(document) && referencesArePlain(document)))
        return Problem{Problem::Damaged, document.size(), 1, 1, {}};
    return problem;
}

} // namespace workbench
