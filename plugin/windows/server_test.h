#pragma once

// Tries out a server address from the user's computer: opens a TCP connection, learns the peer's address
// and the host name, sends and reads nothing. A progress dialog counts the seconds meanwhile. Each test
// that ends sends testConnected once, after the dialog is closed; a refused connection, an unknown name or a
// port outside 0 to 65535 ends with the time limit. The page that asked shows the answer. A user who does not
// want to wait closes the dialog, or presses Esc: that test answers nothing.

#include "windows/form_io_progress.h"

#include <QTcpSocket>
#include <QTimer>

class QHostInfo;

namespace vlk {

// Milliseconds.
struct ServerTestLimits
{
    int whole = 60'000; // a test that has not ended by then has failed
    int tick = 1'000;   // one step of the dialog's counter
};

// Tells the user how a test ended, in a box over `page`.
void showServerAnswer(QWidget* page, bool ok, const QString& text);

} // namespace vlk

class vlk_Socket : public QObject
{
    Q_OBJECT

public:
    explicit vlk_Socket(QObject* parent = nullptr, const vlk::ServerTestLimits& limits = {});

    // Starts a test and returns at once; one that is under way is dropped without an answer.
    void test(const QString& address, int port);

Q_SIGNALS:
    void testConnected(const QString& peerIp, const QString& hostName, bool ok);

private Q_SLOTS:
    void slot_connected();
    void slot_disconnected();
    void slot_hostFound();
    void slot_error();
    void printResults(const QHostInfo& info);
    void slot_timeout_Timer();
    void slot_timeout_TimerTestServer();

private:
    void describe();
    void showElapsed();
    // Ends a test that is under way without an answer.
    void drop();
    void dropLookup();
    void finish();

    static constexpr int kNoLookup = -1;

    const vlk::ServerTestLimits limits_;
    QTcpSocket socket_;
    QTimer timer_;
    QTimer timerTestServer_;
    VLK_Form_IO_Progress progress_;
    QString peerIp_;
    QString hostName_;
    bool ok_ = false;
    bool testing_ = false;
    int lookup_ = kNoLookup;
    int elapsed_ = 0; // steps of the counter
};
