#pragma once

// A host for tests: loads the built plug-in through its exports, keeps what the plug-in sends, and sends
// messages as any host would. Windows are found among the application's widgets by class and object name. One
// instance a process.

#include "plugin/host/host_interface.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLibrary>
#include <QTemporaryDir>
#include <QTimer>
#include <QVector>
#include <QWidget>

#include <cstring>
#include <functional>

Q_DECLARE_METATYPE(vlk::Message)

class ScriptedHost
{
public:
    static constexpr quint64 kMask = 0x0123456789abcdef; // what a tracker is capable of

    struct Sent
    {
        vlk::Message number;
        QString text1; // p1 where it is a QString or a QByteArray
        QString text2; // p2 where it is a QString
        std::intptr_t value;
    };

    ScriptedHost()
    {
        current() = this;
        library_.setFileName(QStringLiteral(VLK_PLUGIN));
        isVlkLibrary = resolve<vlk::IsVlkLibraryVFunction>("IsVlkLibraryV");
        libraryInfo = resolve<vlk::GetLibraryInfoFunction>("GetLibraryInfo");
        initialize = resolve<vlk::InitializeFunction>("Initialize");
        receiveMessage = resolve<vlk::ReceiveMessageFunction>("ReceiveMessage");
    }

    // Identifies the library and initializes it, as a host does once.
    void start()
    {
        vlk::LibraryInfo info;
        libraryInfo(&info);
        handle = vlk::asParameter(info.handle);
        initialize(&ScriptedHost::callback);
        // What is edited is kept below it, and shall not be there in the next run.
        const vlk::Paths paths{{}, folder_.path(), {}, {}};
        send(vlk::Message::SetPaths, &paths);
    }

    void send(vlk::Message number, const void* p1 = nullptr, const void* p2 = nullptr)
    {
        receiveMessage(handle, static_cast<std::uint32_t>(number), const_cast<void*>(p1),
                       const_cast<void*>(p2));
    }

    void attach(const QString& model = QStringLiteral("R-7106"), quint64 mask = kMask)
    {
        vlk::ConnectInfo info{model, QStringLiteral("text one"), QStringLiteral("text two"),
                              {},    static_cast<quint32>(mask), static_cast<quint32>(mask >> 32)};
        send(vlk::Message::TrackerAttached, &info);
    }

    void open(const QString& path, bool full = true, bool fromFile = true)
    {
        vlk::OpenRequest request{};
        request.showFull = full ? 1 : 0;
        request.fromFile = fromFile ? 1 : 0;
        qstrncpy(request.path, path.toLocal8Bit().constData(), sizeof request.path);
        send(vlk::Message::OpenConfiguration, &request);
    }

    QVector<Sent> takeSent(vlk::Message number)
    {
        QVector<Sent> found;
        for (const Sent& sent : std::as_const(sent)) {
            if (sent.number == number)
                found << sent;
        }
        sent.clear();
        return found;
    }

    // The window of a class name, null when there is none.
    static QWidget* window(const char* className)
    {
        const auto widgets = QApplication::allWidgets();
        for (QWidget* widget : widgets) {
            if (std::strcmp(widget->metaObject()->className(), className) == 0)
                return widget;
        }
        return nullptr;
    }

    template <class T>
    static T* child(QWidget* window, const char* name)
    {
        return window ? window->findChild<T*>(QString::fromLatin1(name)) : nullptr;
    }

    // Acts on the next modal window as soon as it is open.
    static void whenModal(std::function<void(QWidget*)> act)
    {
        auto* timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, timer, [timer, act = std::move(act), tries = 0]() mutable {
            QWidget* const open = QApplication::activeModalWidget();
            const bool waiting =
                !open || std::strcmp(open->metaObject()->className(), "VLK_Widget_Config") == 0;
            if (waiting && ++tries < 500)
                return;
            timer->stop();
            timer->deleteLater();
            if (!waiting)
                act(open);
        });
        timer->start(10);
    }

    void* handle = nullptr;
    QVector<Sent> sent;
    // Sees each message within the call, to read or fill what its parameters point to.
    std::function<void(vlk::Message number, void* p1, void* p2)> onSend;
    vlk::IsVlkLibraryVFunction isVlkLibrary = nullptr;
    vlk::GetLibraryInfoFunction libraryInfo = nullptr;
    vlk::InitializeFunction initialize = nullptr;
    vlk::ReceiveMessageFunction receiveMessage = nullptr;

private:
    template <class Function>
    Function resolve(const char* name)
    {
        return reinterpret_cast<Function>(library_.resolve(name));
    }

    static ScriptedHost*& current()
    {
        static ScriptedHost* host = nullptr;
        return host;
    }

    static void callback(void* /*device*/, std::uint32_t id, void* p1, void* p2)
    {
        using vlk::Parameter;
        Sent sent{static_cast<vlk::Message>(id), {}, {}, vlk::asValue(p1)};
        for (const vlk::MessageInfo& info : vlk::kMessages) {
            if (info.number != sent.number)
                continue;
            if (info.p1 == Parameter::StringAddress)
                sent.text1 = *static_cast<QString*>(p1);
            if (info.p1 == Parameter::BytesAddress)
                sent.text1 = QString::fromLatin1(*static_cast<QByteArray*>(p1));
            if (info.p2 == Parameter::StringAddress && !info.fillsSecond)
                sent.text2 = *static_cast<QString*>(p2);
        }
        current()->sent << sent;
        if (current()->onSend)
            current()->onSend(sent.number, p1, p2);
    }

    QLibrary library_;
    QTemporaryDir folder_;
};
