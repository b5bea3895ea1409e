// The workbench's tour without a person, and its written configuration in another reader.

#include "support/files.h"

#include <QDomDocument>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TourTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(folder_.isValid());
        // A file of an earlier tour is in the way of this one.
        writeFile(folder_.filePath(QStringLiteral("quick.xml")), "<DEVICE/>");
        QProcess workbench;
        workbench.setProcessChannelMode(QProcess::MergedChannels);
        workbench.start(QStringLiteral(VLK_WORKBENCH),
                        {"--tour", folder_.path(), "--data", folder_.filePath(QStringLiteral("data"))});
        const bool ended = workbench.waitForFinished(280'000);
        output_ = workbench.readAll();
        exitCode_ = workbench.exitCode();
        workbench.kill();
        workbench.waitForFinished();
        QVERIFY2(ended, output_.right(600).constData());
    }

    void everyStepDidWhatItShould()
    {
        QVERIFY2(exitCode_ == 0, output_.constData());
        QVERIFY2(!output_.contains("FAILED"), output_.constData());
        QVERIFY(content("tour.txt").count("ok ") >= 25);
    }

    void configurationIsWhole()
    {
        QDomDocument document;
        QString error;
        QVERIFY2(document.setContent(content("configuration.xml"), &error), qPrintable(error));
        const QDomElement root = document.documentElement();
        QCOMPARE(root.tagName(), QStringLiteral("DEVICE"));
        QCOMPARE(root.attribute("model"), QStringLiteral("R-7106"));
        QCOMPARE(root.childNodes().size(), 10);
        const QDomElement transfer = root.firstChildElement(QStringLiteral("TRANS"));
        QCOMPARE(transfer.attribute("page"), QStringLiteral("TRANS"));
        QCOMPARE(transfer.firstChildElement("SRV1").attribute("addr"), QStringLiteral("fleet.example.com"));
        QCOMPARE(transfer.firstChildElement("SRV1").attribute("port"), QStringLiteral("5555"));
        QCOMPARE(transfer.firstChildElement("AUTOAPN").attributes().size(), 40);
    }

    // Told by another comparison than the tour's own.
    void whatCameBackIsWhatTheTrackerHolds()
    {
        const QByteArray held = content("configuration.xml");
        QCOMPARE(content("read-back.xml"), held);
        const QByteArray report = content("report.txt");
        for (const char* key :
             {"TRANS/OBJECT/name", "PROTOCOL/ZETA/mask", "TRACK/MOVESENS/stopTimer", "SYSTEM/TIME/zone",
              "RS485/OPTIONS/owner1", "TEMPSENS/SENS1/min", "SENSORS/IN2/name", "ACCEL/SENSORS/sh1",
              "OUTPUTS/LINE1/mode", "BLUETOOTH/SENS1/name"})
            QVERIFY2(report.contains(key), key);
    }

    void picturesShowSomething()
    {
        const QStringList pictures = QDir(folder_.path()).entryList({"*.png"});
        QVERIFY(pictures.size() >= 35);
        for (const QString& name : pictures) {
            const QImage image(folder_.filePath(name));
            QVERIFY2(image.width() >= 200 && image.height() >= 60, qPrintable(name));
            QSet<QRgb> colours;
            for (int y = 0; y < image.height(); y += 3) {
                for (int x = 0; x < image.width(); x += 3)
                    colours << image.pixel(x, y);
            }
            QVERIFY2(colours.size() > 8, qPrintable(name));
        }
    }

private:
    QByteArray content(const char* name) const { return readFile(folder_.filePath(name)); }

    QTemporaryDir folder_;
    QByteArray output_;
    int exitCode_ = -1;
};

QTEST_GUILESS_MAIN(TourTest)
#include "tst_tour.moc"
