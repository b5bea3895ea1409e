#pragma once

// The telemetry view, as a host sees it: messages in, messages and widgets out.

#include "opened_view.h"

#include <QtTest>
#include <QtWidgets>

using vlk::Message;
using vlk::packetBytes;
using Record = vlk::RecordParts;
using Messages = QVector<Message>;

inline QByteArray numbered(quint32 number, char ver = 30)
{
    return Record{{"NumPage", number}}.bytes(ver);
}

// With the shortest length of a present record.
inline QByteArray padded(const QByteArray& record, int size = 101)
{
    return behind(3, record).leftJustified(size, '\0');
}

// A test of it begins with startView(), each of its functions with openView().
class AskedView : protected OpenedView
{
protected:
    void startView()
    {
        start("<SYSTEM><BALANCE USSD=\"*100#\"/></SYSTEM>");
        host.onSend = [this](Message message, void* p1, void* p2) {
            if (message == Message::RequestEventText)
                *static_cast<QString*>(p2) = QString("event %1").arg(vlk::asValue(p1));
            if (message == Message::RequestRecordByNumber)
                number_ = *static_cast<quint32*>(p1);
            if (message == Message::RequestRecordByTime)
                time_ = *static_cast<QDateTime*>(p1);
        };
        // Answers before there is a window find none, and make none.
        sendBadParameters();
        for (const Message answer : {Message::CurrentRecord, Message::RecordByNumber, Message::RecordByTime,
                                     Message::ExtraPacket, Message::TachographAnswer})
            send(answer, padded(numbered(1), 200));
        const vlk::IdPair key{1, 2};
        host.send(Message::LiveKey, &key);
        QVERIFY(!ScriptedHost::window("VLK_Widget_Tmi_View"));
        std::uint8_t answer = 7;
        host.send(Message::PrepareTelemetry, &answer);
        QCOMPARE(static_cast<int>(answer), 0);
        QVERIFY(ScriptedHost::window("VLK_Widget_Tmi_View")->isHidden());
    }

    void openView()
    {
        setMode(0);
        open();
        QVERIFY(window->isVisible());
        host.sent.clear();
    }

    QString page() const { return child<QStackedWidget>("stackedWidget")->currentWidget()->objectName(); }
    void setMode(std::int32_t mode) { host.send(Message::SetHostMode, &mode); }
    Messages takeSent()
    {
        Messages numbers;
        for (const auto& sent : std::exchange(host.sent, {})) {
            if (sent.number != Message::RequestEventText)
                numbers << sent.number;
        }
        return numbers;
    }
    void sendBadParameters()
    {
        for (const vlk::MessageInfo& info : vlk::kMessages) {
            if (info.direction != vlk::Direction::ToPlugin || info.number == Message::PrepareTelemetry)
                continue;
            if (info.p1 != vlk::Parameter::None)
                host.send(info.number);
            if (info.p1 == vlk::Parameter::BytesAddress)
                send(info.number, {});
        }
        const vlk::IdPair pair{1, 2};
        host.send(Message::RfidNumber, &pair);
    }

    quint32 number_ = 0;
    QDateTime time_;
};
