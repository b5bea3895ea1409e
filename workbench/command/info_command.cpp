// What files are.

#include "command/commands.h"

#include "command/configuration_input.h"
#include "command/damage_lines.h"
#include "command/each_file.h"
#include "command/file_kind.h"
#include "command/file_names.h"
#include "command/json_line.h"
#include "command/telemetry_summary.h"
#include "fuel/table/fuel_document.h"
#include "review/preset.h"
#include "window/languages.h"
#include "xml/serialize.h"
#include "xml/xml_document.h"

#include <QDateTime>
#include <QFile>

#include <cstdio>

namespace workbench::command {

namespace {

struct Facts
{
    FileKind kind = FileKind::Unknown;
    bool isPreset = false;
    QString model{};
    QString name{};     // of the object
    QString objectId{}; // at its first server
    std::optional<qint64> records{};
    std::optional<qint64> gaps{};
    QString from{};
    QString to{};
    std::optional<vlk::PeriodHole> hole{};
    QStringList damages{};
};

QString timeText(const std::optional<quint32>& time)
{
    return time ? QDateTime::fromSecsSinceEpoch(*time, Qt::UTC).toString(Qt::ISODate) : QString();
}

QByteArray number(const std::optional<qint64>& count)
{
    return count ? QByteArray::number(*count) : QByteArrayLiteral("null");
}

QByteArray lineOf(const Call& call, const File& file, const Facts& facts)
{
    if (call.json) {
        JsonLine line;
        line.add("file", readable(file.name))
            .add("what", QString::fromLatin1(nameOf(facts.kind)))
            .add("model", facts.model)
            .add("name", facts.name)
            .add("objectId", facts.objectId)
            .addRaw("records", number(facts.records))
            .add("from", facts.from)
            .add("to", facts.to)
            .addRaw("gaps", number(facts.gaps));
        if (facts.isPreset)
            line.addRaw("preset", "true");
        if (facts.hole)
            line.addRaw("missing", QByteArray::number(facts.hole->missing()));
        if (!facts.damages.isEmpty())
            line.add("damage", facts.damages);
        return line.line();
    }
    QStringList told{text(facts.isPreset ? "cli_246" : wordOf(facts.kind))};
    if (!facts.model.isEmpty())
        told << facts.model;
    if (!facts.name.isEmpty())
        told << facts.name.simplified();
    if (!facts.objectId.isEmpty())
        told << QStringLiteral("%1: %2").arg(text("cfgt1_032"), facts.objectId.simplified());
    if (facts.records)
        told << text("cli_065").arg(*facts.records);
    if (!facts.from.isNull())
        told << text("cli_066").arg(facts.from, facts.to);
    if (facts.gaps.value_or(0) > 0)
        told << text("cli_067").arg(*facts.gaps);
    if (facts.hole)
        told << text("cli_360").arg(facts.hole->missing()).arg(facts.hole->before).arg(facts.hole->behind);
    return complaint(file.name, told.join(QStringLiteral(", ")));
}

Outcome telemetryFacts(const Call& call, const File& file, QIODevice& device)
{
    const TelemetrySummary summary = summaryOf(device, file.name);
    Facts facts{.kind = FileKind::Telemetry, .records = summary.records, .gaps = summary.gaps};
    facts.model = summary.model.isEmpty() ? QString() : summary.model;
    facts.from = timeText(summary.from);
    facts.to = timeText(summary.to);
    facts.hole = summary.hole;
    QByteArray complaints;
    for (const vlk::FileDamage& damage : summary.damages) {
        facts.damages << damageText(damage, device.size());
        complaints += damageLine(file, damage, device.size());
    }
    if (summary.strayed > 0)
        complaints += complaint(file.name, text("rec_603").arg(summary.strayed));
    return {lineOf(call, file, facts), complaints, summary.damages.empty() ? Nothing : Found};
}

// A text of the section TRANS; null where there is none.
QString textAt(const CXmlSection& root, const char* group, const char* key)
{
    const CXmlSectionPtr transfer = root.existing(QStringLiteral("TRANS"));
    const CXmlSectionPtr section = transfer ? transfer->existing(QString::fromLatin1(group)) : nullptr;
    const QString* text = section ? section->find(QString::fromLatin1(key)) : nullptr;
    return text && !text->isEmpty() ? *text : QString();
}

Outcome documentFacts(const Call& call, const File& file, FileKind kind, const QByteArray& content)
{
    const QString root = QString::fromLatin1(kind == FileKind::Calibration ? vlk::kFuelRoot : "DEVICE");
    const QString damage = kind == FileKind::Configuration ? whyDamaged(content) : QString();
    vlk::XmlDocument document(damage.isEmpty() ? content : QByteArray(), root);
    if (!document.isOpen())
        return refusal(call, file.name, damage.isEmpty() ? text("cli_008") : damage);
    Facts facts{.kind = kind};
    if (const QString* model = document.root()->find(QStringLiteral("model")))
        facts.model = *model;
    if (kind == FileKind::Configuration) {
        facts.isPreset = vlk::review::saysPreset(*document.root());
        facts.name = textAt(*document.root(), "OBJECT", "name");
        const QString id = textAt(*document.root(), "SRV1", "objID");
        facts.objectId = id == QLatin1String("0") ? QString() : id;
    }
    if (const auto rows = kind == FileKind::Calibration ? vlk::fuelTable(document.root()) : std::nullopt)
        facts.records = static_cast<qint64>(rows->size());
    return {lineOf(call, file, facts)};
}

Outcome factsOf(const Call& call, const File& file)
{
    QFile device(file.name);
    const bool isOpen =
        file.isStandardInput() ? device.open(stdin, QIODevice::ReadOnly) : device.open(QIODevice::ReadOnly);
    const QByteArray start = isOpen ? device.peek(kBeginning) : QByteArray();
    if (start.isEmpty() && device.error() != QFileDevice::NoError)
        return refusal(call, file.name, whyUnreadable(device));
    const FileKind kind = isOpen ? kindOf(device, file.name) : FileKind::Unknown;
    if (kind == FileKind::Telemetry)
        return telemetryFacts(call, file, device);
    if (isBlank(start))
        return refusal(call, file.name, text("cli_004"));
    if (kind == FileKind::Tachograph || kind == FileKind::Unknown)
        return {lineOf(call, file, {.kind = kind})};
    const QByteArray content = device.read(CSerialize::kMaxFileSize + 1);
    if (content.size() > CSerialize::kMaxFileSize)
        return {lineOf(call, file, {.kind = kind, .model = modelOf(start)})};
    return documentFacts(call, file, kind, content);
}

} // namespace

int info(const Call& call, Output& output)
{
    return eachFile(
        call.files, [&](const File& file) { return factsOf(call, file); }, output);
}

} // namespace workbench::command
