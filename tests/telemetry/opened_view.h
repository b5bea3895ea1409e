#pragma once

// The plug-in in a host, with its telemetry view: messages in, messages and widgets out.

#include "support/files.h"
#include "support/records.h"
#include "support/scripted_host.h"
#include "support/window_parts.h"

#include <QTemporaryDir>

// An answer: this many bytes that nobody looks at, and the record.
inline QByteArray behind(int header, const QByteArray& record)
{
    return QByteArray(header, '\x55') + record;
}

class OpenedView : public WindowParts
{
public:
    // With this in the configuration, from which the view has titles and the like.
    void start(const QByteArray& configuration = {})
    {
        host.start();
        if (!configuration.isEmpty())
            configuration_ = writeFile(folder.filePath("configuration.xml"),
                                       "<?xml version=\"1.0\" encoding=\"windows-1251\"?><DEVICE>" +
                                           configuration + "</DEVICE>");
    }
    void open(quint64 mask = ScriptedHost::kMask)
    {
        host.attach(QStringLiteral("R-7106"), mask);
        openAgain();
        window = ScriptedHost::window("VLK_Widget_Tmi_View");
    }
    void openAgain() { host.send(vlk::Message::OpenTelemetry, &configuration_); }
    void send(vlk::Message message, const QByteArray& bytes) { host.send(message, &bytes); }
    void sendRecord(const QByteArray& record) { send(vlk::Message::RecordByNumber, behind(3, record)); }

    ScriptedHost host;
    QTemporaryDir folder;

private:
    QString configuration_;
};
