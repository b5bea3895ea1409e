#include "windows/server_test.h"

#include "windows/page_style.h"

#include <QHostInfo>
#include <QLoggingCategory>
#include <QMessageBox>

Q_LOGGING_CATEGORY(lcServerTest, "vlk.servertest", QtInfoMsg)

vlk_Socket::vlk_Socket(QObject* parent, const vlk::ServerTestLimits& limits)
    : QObject(parent), limits_(limits)
{
    connect(&socket_, &QTcpSocket::connected, this, &vlk_Socket::slot_connected);
    // Queued, so that the answer never goes out from inside a call of the socket: whoever gets it may open
    // a message box or start the next test.
    connect(&socket_, &QTcpSocket::disconnected, this, &vlk_Socket::slot_disconnected, Qt::QueuedConnection);
    connect(&socket_, &QTcpSocket::hostFound, this, &vlk_Socket::slot_hostFound);
    connect(&socket_, &QTcpSocket::errorOccurred, this, &vlk_Socket::slot_error);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &vlk_Socket::slot_timeout_Timer);
    connect(&timerTestServer_, &QTimer::timeout, this, &vlk_Socket::slot_timeout_TimerTestServer);
    connect(&progress_, &VLK_Form_IO_Progress::dismissed, this, &vlk_Socket::drop);
    describe();
}

void vlk_Socket::test(const QString& address, int port)
{
    drop();
    peerIp_.clear();
    hostName_.clear();
    ok_ = false;
    testing_ = true;

    lookup_ = QHostInfo::lookupHost(address, this, &vlk_Socket::printResults);
    if (port >= 0 && port <= 65535)
        socket_.connectToHost(address, static_cast<quint16>(port));
    else
        qCInfo(lcServerTest) << "no such port:" << port;

    elapsed_ = 0;
    describe();
    progress_.showForm();
    // The button is not connected in this dialog; Esc and closing end the wait.
    progress_.setBreakVisible(false);
    timerTestServer_.start(limits_.tick);
    timer_.start(limits_.whole);
}

void vlk_Socket::slot_connected()
{
    peerIp_ = socket_.peerAddress().toString();
    ok_ = true;
    socket_.disconnectFromHost();
}

void vlk_Socket::slot_disconnected()
{
    if (!peerIp_.isEmpty() && !hostName_.isEmpty())
        finish();
}

void vlk_Socket::slot_hostFound()
{
    qCDebug(lcServerTest) << "the socket knows the host";
}

void vlk_Socket::slot_error()
{
    qCInfo(lcServerTest) << "the connection failed:" << socket_.errorString();
}

void vlk_Socket::printResults(const QHostInfo& info)
{
    // An answer that was already on its way when its lookup was dropped still arrives.
    if (info.lookupId() != lookup_)
        return;
    lookup_ = kNoLookup;
    hostName_ = info.hostName();
    if (ok_ && !peerIp_.isEmpty() && !hostName_.isEmpty())
        finish();
}

void vlk_Socket::slot_timeout_Timer()
{
    dropLookup();
    socket_.abort();
    finish();
}

void vlk_Socket::drop()
{
    testing_ = false;
    timer_.stop();
    timerTestServer_.stop();
    dropLookup();
    socket_.abort();
    if (progress_.isVisible())
        progress_.closeForm();
}

void vlk_Socket::slot_timeout_TimerTestServer()
{
    ++elapsed_;
    showElapsed();
}

// Runs before every test, since the language may have changed since the last one.
void vlk_Socket::describe()
{
    const int steps = limits_.whole / limits_.tick;
    progress_.retranslate();
    progress_.setTitleText(tr("cfgt1_110"));
    progress_.setFileTextRight(QStringLiteral("%1:").arg(tr("cfgt1_111")));
    progress_.setAllText(QStringLiteral("%1 %2").arg(steps).arg(tr("abbr_003")));
    progress_.setTimeText({});
    progress_.setHintText(tr("cfgwnd_007"));
    progress_.setMinimum(0);
    progress_.setMaximum(steps);
    showElapsed();
}

void vlk_Socket::showElapsed()
{
    progress_.setCurText(QStringLiteral("%1 %2").arg(elapsed_).arg(tr("abbr_003")));
    progress_.setValue(elapsed_);
}

void vlk_Socket::dropLookup()
{
    if (lookup_ != kNoLookup)
        QHostInfo::abortHostLookup(lookup_);
    lookup_ = kNoLookup;
}

void vlk_Socket::finish()
{
    if (!testing_)
        return;
    testing_ = false;
    timer_.stop();
    timerTestServer_.stop();
    progress_.closeForm();
    Q_EMIT testConnected(peerIp_, hostName_, ok_);
}

void vlk::showServerAnswer(QWidget* page, bool ok, const QString& text)
{
    QMessageBox box(QMessageBox::Warning, vlk_Socket::tr(ok ? "wrd_005" : "wrd_004"), text,
                    QMessageBox::NoButton, page);
    vlk::dressMessageBox(box);
    box.addButton(vlk_Socket::tr("wrd_003"), QMessageBox::AcceptRole);
    box.exec();
}
