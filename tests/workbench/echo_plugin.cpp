// The smallest plug-in: OpenConfiguration copies the file (a document of its own where there is none) into
// the current folder and hands the copy to the host for writing, or tells the log that it could not, and what
// it made of a number where the document has a TYPED element; RaiseConfiguration asks for help,
// GetBalanceUssd gives the last path's first letters.

#include "plugin/host/host_interface.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>

#include <cstring>

namespace {

Q_LOGGING_CATEGORY(lcSave, "vlk.save")
Q_LOGGING_CATEGORY(lcTyping, "vlk.settings.typing")

vlk::HostCallback host = nullptr;
int device = 0;
QByteArray lastPath;

std::uint32_t token()
{
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(&device));
}

void call(vlk::Message id, void* p1, void* p2 = nullptr)
{
    host(&device, static_cast<std::uint32_t>(id), p1, p2);
}

} // namespace

extern "C" {

Q_DECL_EXPORT bool IsVlkLibraryV()
{
    return true;
}

Q_DECL_EXPORT void GetLibraryInfo(vlk::LibraryInfo* info)
{
    *info = {token(), "R-7106", "Echo", 1, 2, 3, 4, 0, 1};
}

Q_DECL_EXPORT void Initialize(vlk::HostCallback callback)
{
    host = callback;
}

Q_DECL_EXPORT void ReceiveMessage(void* handle, std::uint32_t id, void* p1, void* /*p2*/)
{
    if (reinterpret_cast<std::uintptr_t>(handle) != token())
        return;
    switch (vlk::Message(id)) {
    case vlk::Message::OpenConfiguration: {
        lastPath = static_cast<const vlk::OpenRequest*>(p1)->path;
        QString path = QDir::currentPath() + QStringLiteral("/vlk_echo.xml");
        QFile read(QString::fromLocal8Bit(lastPath));
        QFile copy(path);
        const QByteArray document = !lastPath.isEmpty() && read.open(QIODevice::ReadOnly)
                                        ? read.readAll()
                                        : QByteArray("<DEVICE model=\"R-7106\"><A x=\"1\"/></DEVICE>");
        if (!copy.open(QIODevice::WriteOnly) || copy.write(document) != document.size() || !copy.flush()) {
            qCWarning(lcSave, "%s: %s", qPrintable(path), qPrintable(copy.errorString()));
            break;
        }
        copy.close();
        if (document.contains("<TYPED"))
            qCWarning(lcTyping, "Speed: 300 is beyond 1 to 180, 180 was written");
        call(vlk::Message::WriteConfiguration, &path);
        break;
    }
    case vlk::Message::RaiseConfiguration: {
        QString model = QStringLiteral("R-7106");
        QString page = QStringLiteral("r-7106p1.html");
        call(vlk::Message::ShowHelp, &model, &page);
        call(vlk::Message::ShowHelp, nullptr, nullptr);
        break;
    }
    case vlk::Message::GetBalanceUssd:
        std::memset(p1, 'x', vlk::kBalanceUssdSize);
        break;
    default:
        break;
    }
}
}
