#include "check/configuration_check.h"

#include <QXmlStreamReader>

namespace vlk {

namespace {

using Problem = ConfigurationProblem;

// Deeper than any configuration goes.
constexpr int deepest = 32;

class Check
{
public:
    Check(const QByteArray& document, const QString& model)
        : xml_(document), model_(model), bytes_(document.size())
    {
        // The names of a configuration may hold any sign; a colon in one divides nothing.
        xml_.setNamespaceProcessing(false);
    }

    std::optional<Problem> run()
    {
        while (!xml_.atEnd()) {
            switch (xml_.readNext()) {
            case QXmlStreamReader::StartElement:
                if (++depth_ > deepest)
                    return at(Problem::Damaged);
                if (depth_ == 1)
                    lookAtRoot();
                break;
            case QXmlStreamReader::EndElement:
                --depth_;
                break;
            case QXmlStreamReader::DTD:
                // Its declarations could expand without bound, so no reader of ours takes it.
                return at(Problem::Damaged);
            default:
                break;
            }
        }
        if (xml_.error() == QXmlStreamReader::PrematureEndOfDocumentError)
            return at(Problem::CutShort);
        if (xml_.hasError())
            return at(Problem::Damaged);
        // What is foreign is said only of a document that is whole.
        return foreign_;
    }

private:
    Problem at(Problem::Kind kind, const QString& found = {}) const
    {
        return {kind, bytes_, xml_.lineNumber(), xml_.columnNumber() + 1, found};
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
    if (document.size() > largestConfiguration)
        return Problem{Problem::TooLarge, document.size(), 1, 1, {}};
    return Check(document, model).run();
}

} // namespace vlk
