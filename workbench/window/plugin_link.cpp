#include "window/plugin_link.h"

#include "tracker/event_code.h"
#include "window/languages.h"
#include "window/message_text.h"

#include <QFile>

#include <cstring>
#include <vector>

namespace workbench {

namespace {

PluginLink* theLink = nullptr;

template <class Function>
bool resolve(QLibrary& library, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(library.resolve(name));
    return function != nullptr;
}

} // namespace

PluginLink::PluginLink(QObject* parent) : QObject(parent)
{
    theLink = this;
}

PluginLink::~PluginLink()
{
    theLink = nullptr;
}

bool PluginLink::load(const QString& path)
{
    if (!QFile::exists(path)) {
        error_ = text("wb_plugin_missing").arg(path);
        return false;
    }
    library_.setFileName(path);
    if (!library_.load()) {
        error_ = text("wb_plugin_unloadable").arg(path, library_.errorString());
        return false;
    }
    vlk::IsVlkLibraryVFunction isPlugin = nullptr;
    vlk::GetLibraryInfoFunction libraryInfo = nullptr;
    vlk::InitializeFunction initialize = nullptr;
    vlk::ReceiveMessageFunction receive = nullptr;
    if (!resolve(library_, "IsVlkLibraryV", isPlugin) || !resolve(library_, "GetLibraryInfo", libraryInfo) ||
        !resolve(library_, "Initialize", initialize) || !resolve(library_, "ReceiveMessage", receive) ||
        !isPlugin()) {
        error_ = text("wb_plugin_foreign").arg(path);
        return false;
    }
    libraryInfo(&info_);
    handle_ = vlk::asParameter(info_.handle);
    receive_ = receive;
    initialize(&PluginLink::callback);
    return true;
}

QString PluginLink::modelName() const
{
    return QString::fromUtf8(info_.modelName, qstrnlen(info_.modelName, sizeof info_.modelName));
}

QString PluginLink::displayName() const
{
    return QString::fromLocal8Bit(info_.displayName, qstrnlen(info_.displayName, sizeof info_.displayName));
}

QString PluginLink::version() const
{
    return QStringLiteral("%1.%2.%3.%4")
        .arg(info_.versionMajor)
        .arg(info_.versionMinor)
        .arg(info_.versionPatch)
        .arg(info_.versionFourth);
}

template <class Carry>
void PluginLink::pass(vlk::Direction direction, quint32 id, const void* p1, const void* p2, Carry carry)
{
    const vlk::MessageInfo* info = findMessage(direction, id);
    const bool fills = info && (info->fillsFirst || info->fillsSecond);
    if (!fills)
        Q_EMIT passed(direction, id, p1, p2);
    carry();
    if (fills)
        Q_EMIT passed(direction, id, p1, p2);
}

void PluginLink::send(vlk::Message id, void* p1, void* p2)
{
    if (!isLoaded())
        return;
    const auto number = static_cast<std::uint32_t>(id);
    pass(vlk::Direction::ToPlugin, number, p1, p2, [&] { receive_(handle_, number, p1, p2); });
}

void PluginLink::callback(void* /*device*/, std::uint32_t id, void* p1, void* p2)
{
    if (!theLink)
        return;
    theLink->pass(vlk::Direction::ToHost, id, p1, p2,
                  [&] { Q_EMIT theLink->received(static_cast<vlk::Message>(id), p1, p2); });
}

void PluginLink::setMode(int mode)
{
    std::int32_t value = mode;
    send(vlk::Message::SetHostMode, &value);
}

void PluginLink::setPaths(const QString& telemetry, const QString& configurations)
{
    vlk::Paths paths{telemetry, configurations, {}, {}};
    send(vlk::Message::SetPaths, &paths);
}

void PluginLink::attachTracker(const QString& model, const QString& text1, const QString& text2,
                               quint64 capabilities)
{
    vlk::ConnectInfo info{model,
                          text1,
                          text2,
                          {},
                          static_cast<quint32>(capabilities),
                          static_cast<quint32>(capabilities >> 32)};
    send(vlk::Message::TrackerAttached, &info);
}

void PluginLink::openConfiguration(const QString& path, bool full, bool fromFile)
{
    const QByteArray encoded = path.toLocal8Bit();
    // As long as the path needs, and never shorter than the record's declared size.
    const std::size_t size =
        std::max(sizeof(vlk::OpenRequest),
                 offsetof(vlk::OpenRequest, path) + static_cast<std::size_t>(encoded.size()) + 1);
    std::vector<std::int32_t> record(size / sizeof(std::int32_t) + 1);
    record[0] = full ? 1 : 0;
    record[1] = fromFile ? 1 : 0;
    std::memcpy(record.data() + 2, encoded.constData(), static_cast<std::size_t>(encoded.size()));
    send(vlk::Message::OpenConfiguration, record.data());
}

void PluginLink::openTelemetry(const QString& configuration)
{
    QString path = configuration;
    send(vlk::Message::OpenTelemetry, &path);
}

void PluginLink::showStoredFile(const QString& path, int kind)
{
    QString file = path;
    std::int32_t value = kind;
    send(vlk::Message::ShowStoredFile, &file, &value);
}

QString PluginLink::balanceCode()
{
    char code[vlk::kBalanceUssdSize] = {};
    send(vlk::Message::GetBalanceUssd, code);
    return QString::fromLocal8Bit(code, qstrnlen(code, sizeof code));
}

void PluginLink::promiseConfirmations()
{
    vlk::WriteConfirmation record;
    send(vlk::Message::ConfirmWrite, &record);
}

void PluginLink::confirmWrite(const QByteArray& content)
{
    vlk::WriteConfirmation record;
    record.step = vlk::WriteConfirmation::Confirmed;
    record.content = &content;
    send(vlk::Message::ConfirmWrite, &record);
}

void PluginLink::tellHeld(const QByteArray& content)
{
    vlk::WriteConfirmation record;
    record.step = vlk::WriteConfirmation::Held;
    record.content = &content;
    send(vlk::Message::ConfirmWrite, &record);
}

bool PluginLink::hasTakenOver()
{
    vlk::WriteConfirmation record;
    record.step = vlk::WriteConfirmation::Asked;
    send(vlk::Message::ConfirmWrite, &record);
    return record.takenOver == 1;
}

void PluginLink::offerTexts(Languages& languages)
{
    vlk::OfferedTexts offered;
    offered.context = &languages;
    offered.fill = [](void* context, const char* language, const char* key, QString* filled) {
        QByteArray name(key);
        if (name.startsWith("event "))
            name = tracker::eventKey(name.mid(6).toUShort());
        *filled = static_cast<Languages*>(context)->textIn(QString::fromLatin1(language), name.constData());
    };
    send(vlk::Message::OfferTexts, &offered);
}

void PluginLink::withdrawTexts()
{
    vlk::OfferedTexts none;
    send(vlk::Message::OfferTexts, &none);
}

vlk::EndedSave PluginLink::endSave()
{
    vlk::EndedSave record;
    send(vlk::Message::EndSave, &record);
    return record;
}

vlk::RunningWork PluginLink::runningWork()
{
    vlk::RunningWork record;
    send(vlk::Message::GetRunningWork, &record);
    return record;
}

bool PluginLink::appliesPresets()
{
    vlk::Extensions record;
    send(vlk::Message::GetExtensions, &record);
    return record.newest >= static_cast<std::uint32_t>(vlk::Message::ApplyPreset);
}

void PluginLink::showPreset(const QString& path)
{
    vlk::PresetApplication record;
    record.preset = &path;
    send(vlk::Message::ApplyPreset, &record);
}

} // namespace workbench
