// What a configuration file loses by a load and a save, and the advice on it.

#include "document/values_document.h"
#include "review/check_file.h"
#include "settings/all_settings.h"
#include "settings/quick_settings.h"
#include "support/data_table.h"
#include "support/files.h"
#include "xml/xml_document.h"
#include "xml/xml_section.h"

#include <QtTest>

using vlk::review::FileRemark;

namespace {

// "finding TRACK/POINTS/angle: text", one line a remark; without texts the translation keys stand in them.
QStringList told(const QByteArray& file)
{
    vlk::XmlDocument document(file, "DEVICE");
    QStringList lines;
    for (const FileRemark& remark : vlk::review::checkDocument(*document.root())) {
        const bool isAdvice = remark.kind == FileRemark::Kind::Advice;
        const bool isHint = !isAdvice && remark.severity == vlk::review::Severity::Hint;
        lines << QString(isAdvice ? "advice "
                         : isHint ? "hint "
                                  : "") +
                     remark.path + (remark.page.isNull() ? "" : " named") +
                     (isAdvice ? QString() : ": " + remark.text);
    }
    return lines;
}

QByteArray factory()
{
    return readFile(VLK_SOURCE "/workbench/tracker/factory.xml");
}

QByteArray factoryMask()
{
    const QByteArray file = factory();
    return file.mid(file.indexOf("mask=\"") + 6, 255);
}

} // namespace

class TestCheckFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void factoryIsQuiet() { QCOMPARE(told(factory()), QStringList()); }

    void newOneGivesHints()
    {
        vlk::XmlDocument document(QByteArray("<DEVICE/>"), "DEVICE");
        for (const FileRemark& remark : vlk::review::checkDocument(*document.root()))
            QCOMPARE(remark.severity, vlk::review::Severity::Hint);
    }

    void tells_data()
    {
        // Put in front of the sections of the factory configuration, or in place of a part of it.
        DataTable<QByteArray, QByteArray, QString> table({"from", "to", "told"});
        table.row("spelling", "angle=\"5\" useDist", "angle=\"05\" useDist", {});
        table.row("limit", "angle=\"5\" useDist", "angle=\"500\" useDist",
                  QString::fromUtf8("TRACK/POINTS/angle named: 500 abbr_016 \u2192 90 abbr_016. rev_007"));
        table.row("letters of other languages", "<OBJECT name=\"", "<OBJECT name=\"&#x65E5;",
                  QString::fromUtf8("TRANS/OBJECT/name named: \u65E5\u0420\u0435\u0439\u0441 71 \u2192 "
                                    "?\u0420\u0435\u0439\u0441 71. rev_021"));
        table.row("key missing", "angle=\"5\" useDist", "useDist", {});
        table.row("unknown key", "<POINTS ", "<POINTS bogus=\"1\" ", "TRACK/POINTS/bogus: rev_003");
        table.row("unknown element", "<POINTS ", "<BOGUS a=\"1\" b=\"2\"/><POINTS ",
                  "TRACK/BOGUS/a: rev_003; TRACK/BOGUS/b: rev_003");
        table.row("empty unknown element", "<POINTS ", "<BOGUS/><POINTS ", "TRACK/BOGUS: rev_003");
        table.row("doubled element", "<LIMPOINT ", "<POINTS angle=\"7\"/><LIMPOINT ",
                  "TRACK/POINTS[2]/angle named: rev_023");
        table.row("doubled key", "angle=\"5\" useDist", "angle=\"5\" angle=\"7\" useDist",
                  "TRACK/POINTS/angle[2] named: rev_023");
        table.row("unknown section", "<TRACK ", "<BOGUS a=\"1\"><B c=\"2\"/></BOGUS><TRACK ",
                  "BOGUS: rev_022");
        table.row("doubled section", "</DEVICE>", "<TRACK><POINTS angle=\"7\" dist=\"9\"/></TRACK></DEVICE>",
                  "TRACK[2]: rev_023");
        table.row("secret", "CRYPTO key=\"\"", "CRYPTO key=\"" + QByteArray(40, 'x') + '"',
                  QString::fromUtf8(
                      "TRANS/CRYPTO/key named: ••• \u2192 •••. rev_010; advice TRANS/CRYPTO/srv1Mode named"));
        table.row("address in another form", "C4:64:E3:0B:52:10", "C4-64-E3-0B-52-10", {});
        table.row("address with too many digits", "C4:64:E3:0B:52:10", "C4:64:E3:0B:52:10:77",
                  QString::fromUtf8("BLUETOOTH/SENS1/macaddr named: C4:64:E3:0B:52:10:77 \u2192 "
                                    "C4:64:E3:0B:52:10. rev_010"));
        table.row("no address", "\":::::\" name", "\"hello\" name",
                  QString::fromUtf8("BLUETOOTH/SENS3/macaddr named: hello \u2192 e:::::. rev_011; "
                                    "advice BLUETOOTH/SENS3/type named"));
        // Its level without its temperature.
        table.row("half of a field", factoryMask(), factoryMask().replace(79, 1, "0"),
                  QString::fromUtf8("PROTOCOL/ZETA/mask named: cfgt2f_052 3: rev_353 \u2192 "
                                    "cfgt2f_052 3: wrd_001. rev_355"));
        // Full setup neither reads nor writes them.
        table.row("keys of quick setup", "<SRV1 ", "<SRV1 format=\"VLKB_ZETA\" ",
                  "hint TRANS/SRV1/format named: ZETA. rev_299");
        table.row("constant of quick setup", "<OPTIONS ", "<OPTIONS owner2=\"\" ",
                  "hint RS485/OPTIONS/owner2 named: rev_753. rev_299");
        table.row("levels of quick setup, one of them as it writes it", "<IN1ADIN ",
                  "<IN1ADIN lowLvl=\"5000\" highLvl=\"7000\" ",
                  "hint SENSORS/IN1/IN1ADIN/lowLvl named: 5000. rev_299; "
                  "SENSORS/IN1/IN1ADIN/highLvl: rev_299");
        table.row("model", "model=\"R-7106\"", "model=\"R-1\"", "advice DEVICE/model");
        table.row("version", "version=\"3.3.0\"", "version=\"3.2.0\"", "advice DEVICE/version");
    }

    void tells()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QFETCH(QString, told);
        QByteArray file = factory();
        QVERIFY(file.contains(from));
        QCOMPARE(::told(file.replace(file.indexOf(from), from.size(), to)).join("; "), told);
    }

    // Whatever sensors it uses: of a Bluetooth one it sends the level alone.
    void quickSetupGivesHints()
    {
        const char* sensors[] = {"RS485/sensor1", "RS485/sensor2", "BLUETOOTH/sensor3", "BLUETOOTH/sensor4"};
        for (int chosen = 0; chosen < 16; ++chosen) {
            vlk::XmlDocument document(factory(), "DEVICE");
            vlk::Configuration full(vlk::allSettings());
            full.read(*document.root());
            full.write(*document.root());
            vlk::Values quick(vlk::kQuickSettings);
            vlk::readFrom(*document.root(), quick);
            for (int i = 0; i < 4; ++i)
                quick.edit(quick.layout().rowAt(sensors[i]), (chosen >> i & 1) ? "1" : "0");
            quick.edit(quick.layout().rowAt("RS485/fuel"), (chosen & 3) ? "1" : "0");
            quick.edit(quick.layout().rowAt("BLUETOOTH/sensors"), (chosen & 12) ? "1" : "0");
            vlk::writeTo(*document.root(), quick);
            document.root()->commit();
            const QStringList findings = told(document.text()).filter(QRegularExpression("^(?!advice|hint)"));
            QVERIFY2(findings.isEmpty(), qPrintable(QString::number(chosen) + findings.join("; ")));
        }
    }
};

QTEST_APPLESS_MAIN(TestCheckFile)
#include "tst_check_file.moc"
