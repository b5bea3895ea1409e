#pragma once

// The simulated tracker: one R-7106 behind the workbench. It keeps its configuration in a folder, drives an
// endless tour whose records follow that configuration, and answers the plug-in's requests as a device
// would: later, from the event loop, and only while it is attached.
//
// Everything runs on the thread of the application. Nothing is asked of a sender that is not set.

#include "plugin/host/host_interface.h"
#include "tracker/faults.h"
#include "tracker/write_report.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace tracker {

class ConfigurationValues;

// What came when the configuration was asked for.
struct Reading
{
    enum class Outcome {
        Came,     // as a file would lie in `document`; faults that spoil answers spoil it
        Detached, // nobody there to be asked
        Unplugged,
        Silent
    };

    Outcome outcome = Outcome::Came;
    QByteArray document;
};

struct Present
{
    double mileage;  // km
    double speed;    // km/h
    bool ignition;   // on
    quint16 outputs; // bit n is output n + 1
};

// The version of its records: what the configuration asks for, or one whatever it asks.
enum class Protocol { AsConfigured = 0, Protocol1 = 10, Protocol2 = 20, Protocol3 = 30 };

class SimulatedTracker : public QObject
{
    Q_OBJECT

public:
    // Where the tracker's time comes from; the system's clock unless given.
    using Clock = std::function<QDateTime()>;
    // Carries an answer to the plug-in; the parameters are valid during the call only.
    using Sender = std::function<void(vlk::Message id, void* p1, void* p2)>;

    // The folder is made when it does not exist; what the tracker keeps survives in it.
    explicit SimulatedTracker(const QString& storeFolder, QObject* parent = nullptr, Clock clock = {});
    ~SimulatedTracker() override;

    void setSender(Sender sender);
    void setClock(Clock clock);

    // Takes a request of the plug-in; true when it was one for the tracker. RequestEventText fills its text
    // at once, everything else is answered from the event loop. While detached, requests are dropped.
    //
    // The answers to a request come with the ticket that it had, so that who sends one twice knows to which
    // of them an answer belongs.
    bool handle(vlk::Message id, void* p1, void* p2, quint32 ticket = 0);
    // The ticket of the answer that the sender is being given.
    quint32 ticket() const;

    // For TrackerAttached.
    QString model() const;
    QString text1() const; // firmware
    QString text2() const; // IMEI
    quint64 capabilityMask() const;
    // The name of the vehicle, as its configuration says.
    QString vehicleName() const;

    // Detaching drops the answers that are under way.
    bool attached() const;
    void attach();
    void detach();

    // What commands change and what they depend on, as it says itself; none when no answer comes that can be
    // believed.
    std::optional<Present> readPresent();
    Reading readConfiguration();
    // What it kept before the last write; empty where nothing was written.
    Reading readPrevious();
    // The configuration that it holds, whatever the cable does to it.
    const ConfigurationValues& configuration() const;
    // "fleet.example.com:4000", of servers 1 to 3; empty for none.
    QString serverAddress(int server) const;
    // Takes a document that has come over the cable in blocks: checks it, keeps what was there as a backup,
    // and applies it. Silence, a missing and a pulled cable refuse it.
    WriteReport takeConfiguration(const QByteArray& document);
    enum class Block { Kept, Silent, Gone };
    Block takeBlock();

    // What the window switches, at will between requests.
    const Faults& faults() const;
    void setFaults(const Faults& faults);
    Protocol protocol() const;
    void setProtocol(Protocol protocol);
    // Every field in every record, whatever mask the configuration has.
    bool fullDataSet() const;
    void setFullDataSet(bool full);

    // The tanks by their index: litres in them, and what their sensors say, in millivolts or as a code.
    double fuelIn(std::size_t tank) const;
    double fuelReading(std::size_t tank) const;
    // More than the tank holds runs over; a negative amount drains it.
    void pour(std::size_t tank, double litres);

Q_SIGNALS:
    void attachedChanged(bool attached);
    // The fault pulled the cable while an answer was under way; attachedChanged follows.
    void pulled();
    // By the window, or because a fault has cleared itself.
    void faultsChanged();
    // After every takeConfiguration, refused ones too.
    void configurationWritten();

private:
    Reading read(const QByteArray& document);

    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace tracker
