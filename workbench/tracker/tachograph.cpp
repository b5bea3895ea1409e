#include "tracker/tachograph.h"

#include "base/whole_file.h"
#include "tracker/ddd_file.h"
#include "tracker/driver.h"
#include "tracker/vehicle_motion.h"

#include <QDateTime>
#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace tracker {

namespace {

using vlk::Message;

enum FrameKind : int { FileState = 0, State = 1, Card1 = 3, Card2 = 4, VehicleUnit = 5 };
enum FileCode : char { FileReady = 0, FileBeingMade = 0x10, FileRefused = 0x30 };

constexpr int kKindOffset = 6;
constexpr int kStatusOffset = 7;
constexpr char kStatusOk = 0;
constexpr char kStatusAbsent = 0x20;

// An answer of a kind: `size` bytes behind the header, fields at offsets counted from the header's start.
class Frame
{
public:
    Frame(FrameKind kind, int size, char status) : bytes_(kKindOffset + size, '\0')
    {
        constexpr char header = 0x54;
        bytes_[0] = header;
        put(1, static_cast<quint16>(size));
        bytes_[kKindOffset] = static_cast<char>(kind);
        bytes_[kStatusOffset] = status;
    }

    template <typename T>
    void put(int offset, T value)
    {
        qToLittleEndian(value, bytes_.data() + offset);
    }
    void text(int offset, int width, const QByteArray& text)
    {
        bytes_.replace(offset, std::min(width, text.size()), text.left(width));
    }

    Answers answers() const { return {Answer::bytes(bytes_)}; }
    const QByteArray& bytes() const { return bytes_; }

private:
    QByteArray bytes_;
};

quint8 nibbles(int low, int high)
{
    return static_cast<quint8>(low | high << 4);
}

// Table A of the answers: what the driver does.
int doing(const Vehicle& vehicle)
{
    return static_cast<int>(tachographState(vehicle)) & 3;
}

constexpr int kCardInside = 1;

Answers stateAnswer(const Vehicle& vehicle)
{
    // Minutes of driver 1: driving without a break, the breaks, what he does now, driving in two weeks. There
    // is no driver 2.
    const double driven = vehicle.m.at.loadSeconds / 60;
    const double minutes[] = {std::fmod(driven, 270), 15 + std::fmod(driven, 30), std::fmod(driven, 90),
                              2400 + std::fmod(driven, 3000)};
    Frame frame(State, 31, kStatusOk);
    frame.put(8, static_cast<quint32>(vehicle.m.time));
    frame.put(12, nibbles(vehicle.driving(), vehicle.m.speed > vehicle.m.speedLimit));
    frame.put(13, nibbles(doing(vehicle), 0));
    frame.put(14, nibbles(0, kCardInside));
    frame.put(15, nibbles(0, 0));
    frame.put(16, static_cast<quint32>(68000 + vehicle.m.at.km));
    frame.put(20, static_cast<quint8>(std::lround(vehicle.m.speed)));
    for (std::size_t i = 0; i < std::size(minutes); ++i)
        frame.put(static_cast<int>(21 + 2 * i), static_cast<quint16>(minutes[i]));
    return frame.answers();
}

Answers cardAnswer(const Vehicle& vehicle, FrameKind kind)
{
    constexpr int size = 169;
    if (kind == Card2)
        return Frame(kind, size, kStatusAbsent).answers();
    constexpr int nationRussia = 43;
    constexpr int nameStep = 36;
    constexpr char latin = 1;
    const Driver& driver = driverOf(vehicle.m);
    const QByteArray names[] = {driver.surname, driver.firstName, "FBU ROSAVTOTRANS", "YAROSLAVL"};
    Frame frame(kind, size, kStatusOk);
    frame.put(8, nibbles(doing(vehicle), kCardInside));
    frame.put(10, static_cast<quint8>(nationRussia));
    frame.text(11, 16, driver.card);
    frame.put(27, static_cast<quint32>(vehicle.m.at.km));
    for (int i = 0; i < 4; ++i) {
        frame.put(31 + nameStep * i, static_cast<quint8>(latin));
        frame.text(32 + nameStep * i, nameStep - 1, names[i]);
    }
    return frame.answers();
}

Answers vehicleAnswer(const Vehicle& vehicle)
{
    constexpr quint32 year = 31536000;
    const auto now = static_cast<quint32>(vehicle.m.time);
    Frame frame(VehicleUnit, 113, kStatusOk);
    frame.text(8, 32, "TACHOGRAPH DT-20M");
    frame.text(40, 17, "XTC652001N1710601");
    frame.put(57, quint8{43});
    frame.put(58, quint8{1});
    frame.text(59, 15, "A710BC76");
    frame.put(74, quint8{12});
    frame.put(75, now - year);
    frame.put(79, now - year / 2);
    frame.put(83, now + year / 2);
    frame.text(87, 16, "0000710600420017");
    frame.text(103, 16, "01.02.0031");
    return frame.answers();
}

QByteArray fileState(FileCode code, int number, const QByteArray& name = {})
{
    constexpr int nameWidth = 72;
    Frame frame(FileState, 6 + nameWidth + 1, static_cast<char>(code));
    frame.put(8, static_cast<quint32>(number));
    frame.text(12, nameWidth, name);
    return frame.bytes();
}

} // namespace

Tachograph::Tachograph(std::function<Vehicle()> present) : present_(std::move(present)) {}

void Tachograph::addTo(Handlers& handlers)
{
    handlers[Message::TachographQuestion] = [this](void* p1) { return question(plainValue(p1)); };
    handlers[Message::TachographFileRequest] = [this](void* p1) {
        return makeFile(static_cast<const vlk::szQueryTaho*>(p1));
    };
    handlers[Message::TachographFileRead] = [this](void* p1) {
        return saveFile(static_cast<const QString*>(p1));
    };
}

Answers Tachograph::question(int number) const
{
    switch (number) {
    case State:
        return stateAnswer(present_());
    case Card1:
    case Card2:
        return cardAnswer(present_(), static_cast<FrameKind>(number));
    case VehicleUnit:
        return vehicleAnswer(present_());
    default:
        return {};
    }
}

// The tracker tells that it works, how far it is, and the name when it is done.
Answers Tachograph::makeFile(const vlk::szQueryTaho* request)
{
    if (!request)
        return {};
    const DddFile made = makeDddFile(request->code, request->parameter, present_());
    if (made.content.isEmpty())
        return {Answer::bytes(fileState(FileRefused, request->code))};
    file_ = made.content;
    const QByteArray states[] = {fileState(FileBeingMade, 0), fileState(FileBeingMade, file_.size() / 2),
                                 fileState(FileReady, file_.size(), made.name)};
    constexpr int stepMs = 600;
    Answers answers;
    for (const QByteArray& state : states) {
        answers.push_back(Answer::bytes(state));
        answers.back().afterMs = static_cast<int>(answers.size() - 1) * stepMs;
    }
    return answers;
}

Answers Tachograph::saveFile(const QString* path) const
{
    bool saved = false;
    if (path && !path->isEmpty() && !file_.isEmpty()) {
        QSaveFile file(*path);
        saved = vlk::saveWhole(file, file_);
    }
    return {Answer::record(static_cast<quint8>(saved))};
}

} // namespace tracker
