#pragma once

// A tracker with a store of its own, a clock that stands until it is moved, and a listening plug-in.

#include "support/files.h"
#include "tracker/simulated_tracker.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

struct Told
{
    vlk::Message id;
    QByteArray first; // of a record its bytes
    QByteArray second;
};

// What the first parameter of an answer points to. A record whose size stands nowhere here ends the test.
inline QByteArray carriedBy(vlk::Message id, const void* parameter)
{
    if (!parameter)
        return {};
    const auto bytes = [parameter](std::size_t size) {
        return QByteArray(static_cast<const char*>(parameter), static_cast<int>(size));
    };
    const vlk::MessageInfo& info = *std::ranges::find(vlk::kMessages, id, &vlk::MessageInfo::number);
    if (info.p1 == vlk::Parameter::BytesAddress)
        return *static_cast<const QByteArray*>(parameter);
    if (info.p1 == vlk::Parameter::ByteAddress)
        return bytes(1);
    if (info.p1 == vlk::Parameter::Int32Address)
        return bytes(sizeof(std::int32_t));
    switch (id) {
    case vlk::Message::SupplyValues:
        return bytes(sizeof(vlk::SupplyRecord));
    case vlk::Message::AnalogRecord:
        return bytes(vlk::kAnalogRecordSize);
    case vlk::Message::AccelRecord:
        return bytes(sizeof(vlk::AccelValues));
    case vlk::Message::AccelCommandResult:
        return bytes(vlk::kAccelResultSize);
    case vlk::Message::LiveKey:
    case vlk::Message::RfidNumber:
        return bytes(sizeof(vlk::IdPair));
    case vlk::Message::BtDeviceFound:
        return bytes(sizeof(vlk::BtDevice));
    default:
        qFatal("the size of what %s carries is not known", info.name);
    }
}

class BenchTracker
{
public:
    explicit BenchTracker(const QString& folder = {}) : folder_(folder.isEmpty() ? own_.path() : folder)
    {
        restart();
    }

    void restart()
    {
        tracker = std::make_unique<tracker::SimulatedTracker>(
            folder_, nullptr, [this] { return QDateTime::fromSecsSinceEpoch(now, Qt::UTC); });
        tracker->setSender([this](vlk::Message id, void* p1, void* p2) {
            told.append({id, carriedBy(id, p1), p2 ? QByteArray(static_cast<char*>(p2), 1) : QByteArray()});
        });
        tracker->attach();
    }

    // The first answer; empty when none comes in far more time than it takes.
    Told ask(vlk::Message id, void* p1 = nullptr, int timeoutMs = 20000)
    {
        told.clear();
        tracker->handle(id, p1, nullptr);
        QElapsedTimer timer;
        timer.start();
        while (told.isEmpty() && timer.elapsed() < timeoutMs)
            QTest::qWait(2);
        return told.isEmpty() ? Told{} : told.first();
    }
    Told ask(vlk::Message id, int value) { return ask(id, plain(value)); }
    // No answer comes in the time that it would take.
    bool silent(vlk::Message id, void* p1 = nullptr) { return ask(id, p1, 200).id == vlk::Message{}; }
    static void* plain(int value) { return vlk::asParameter(value); }

    // Records without the headers of their answers.
    QByteArray currentRecord()
    {
        return ask(vlk::Message::RequestCurrentRecord).first.mid(vlk::kCurrentRecordHeader);
    }
    QByteArray recordByNumber(quint32 number)
    {
        return ask(vlk::Message::RequestRecordByNumber, &number).first.mid(vlk::kRecordByNumberHeader);
    }
    // All asked for at once, since every answer takes its time.
    QVector<QByteArray> records(quint32 first, quint32 count)
    {
        told.clear();
        for (quint32 number = first; number < first + count; ++number)
            tracker->handle(vlk::Message::RequestRecordByNumber, &number, nullptr);
        QVector<QByteArray> records;
        if (QTest::qWaitFor([&] { return told.size() == static_cast<int>(count); }, 60000))
            for (const Told& each : qAsConst(told))
                records += each.first.mid(vlk::kRecordByNumberHeader);
        return records;
    }

    QByteArray configuration() const { return tracker->readConfiguration().document; }
    tracker::WriteReport write(const QByteArray& document) { return tracker->takeConfiguration(document); }
    QString folder() const { return folder_; }

    std::unique_ptr<tracker::SimulatedTracker> tracker;
    QVector<Told> told;
    qint64 now = 1780000000; // a Thursday in the afternoon

private:
    QTemporaryDir own_;
    QString folder_;
};
