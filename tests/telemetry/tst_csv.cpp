// The columns of the CSV form, and rows of hand-made records. Without a translator a word shows as its key.

#include "sample_pages.h"
#include "support/brackets.h"
#include "telemetry/files/csv_columns.h"
#include "telemetry/files/telemetry_csv_writer.h"

#include <QBuffer>
#include <QtTest>

#include <set>

using namespace vlk;

namespace {

// Each with an item of its own.
constexpr int kColumns = 576;

// A field of the mask and the headings of its columns, several in a line.
constexpr char kHeadings[] = R"(
0=tmizta_123 | 2=tmizta_125 | 3=tmizta_001;tmizta_126;tmizta_127;tmizta_128;tmizta_129;tmizta_130;tmizta_131
4=GSM;tmizta_132;tmizta_133;tmizta_134;tmizta_135;tmizta_136;tmizta_137;tmizta_138
5=tmizta_139;tmizta_140;tmizta_141;tmizta_142;tmizta_143;tmizta_144 | 7=GLONASS/GPS;tmizta_146;tmizta_147
17=tmizta_157 | 18=tmizta_158 | 27=AIN8 | 29=IN9;IN10;IN11;IN12;IN13;IN14;IN15;IN16
31=O9;O10;O11;O12;O13;O14;O15;O16 | 33=tmizta_160 2 | 42=RS-485 tmizta_163 6 | 43=RS-232 tmizta_163 | 51=Т8
52=CAN tmizta_164, %;CAN tmizta_164, abbr_026 | 61=CAN tmizta_169 5
65=CAN tmizta_173, %;CAN tmizta_173, abbr_026 | 68=CAN tmizta_176
69=tmizta_177 GLONASS;tmizta_177 GPS;tmizta_177 Galileo;tmizta_177 COMPASS;tmizta_177 BeiDou;tmizta_177 DORIS;tmizta_177 IRNSS;tmizta_177 QZSS
70=HDOP;PDOP | 71=tmizta_178. tmizta_128;tmizta_178. tmizta_177;tmizta_178. tmizta_179
72=tmizta_178. tmizta_149;tmizta_178. tmizta_150 | 73=tmizta_178. tmizta_151 | 74=tmizta_178. tmizta_153
76=LBS tmizta_180 1;LBS tmizta_181 1;LBS tmizta_182 1;LBS tmizta_183 1;LBS tmizta_145 1;LBS tmizta_180 2;LBS tmizta_181 2;LBS tmizta_182 2;LBS tmizta_183 2;LBS tmizta_145 2;LBS tmizta_180 3;LBS tmizta_181 3;LBS tmizta_182 3;LBS tmizta_183 3;LBS tmizta_145 3;LBS tmizta_184
83=RS-485 tmizta_163 7;RS-485 tmizta_185 7 | 92=RS-485 tmizta_163 16;RS-485 tmizta_185 16
93=TPMS tmizta_187 1;TPMS tmizta_186 1;TPMS tmizta_185 1;TPMS tmizta_187 2;TPMS tmizta_186 2;TPMS tmizta_185 2
97=tmizta_188 tmizta_189 1;tmizta_188 tmizta_190 1;tmizta_188 tmizta_190 2;tmizta_188 tmizta_189 2
99=tmizta_188 tmizta_191: tmizta_192;tmizta_188 tmizta_191: tmizta_193;tmizta_188 tmizta_191: tmizta_194;tmizta_188 tmizta_191: tmizta_195;tmizta_188 tmizta_191: tmizta_196;tmizta_188 tmizta_191: tmizta_197;tmizta_188 tmizta_191: tmizta_198 1. tmizta_199;tmizta_188 tmizta_191: tmizta_198 2. tmizta_199
106=tmizta_205 tmizta_206;tmizta_205 tmizta_206 Y;tmizta_205 tmizta_206 Z
108=EcoDriving tmizta_208;EcoDriving tmizta_209;EcoDriving tmizta_210 | 116=tmizta_211 8;tmizta_212 8
117=tmizta_213 tmizta_191;tmizta_213 tmizta_214;tmizta_213 tmizta_215;tmizta_213 tmizta_216;tmizta_213 tmizta_217;tmizta_213 tmizta_218;tmizta_213 tmizta_128
121=tmizta_222 tmizta_191;tmizta_222 tmizta_223;tmizta_222 tmizta_224;tmizta_222 tmizta_217 | 122=tmizta_225
123=Iridium;tmizta_226
124=tmizta_227 tmizta_228;tmizta_227 tmizta_229 1;tmizta_227 tmizta_229 2;tmizta_227 tmizta_229 3;tmizta_227 tmizta_229 RCS/RFU;tmizta_227 tmizta_230
125=IN17;IN18;IN19;IN20;IN21;IN22;IN23;IN24 | 131=tmizta_230 8 | 132=tmizta_231 3
138=tmizta_205 tmizta_232;tmizta_205 tmizta_233;tmizta_205 tmizta_234;tmizta_205 tmizta_235;tmizta_205 tmizta_236
140=tmizta_205 tmizta_238;tmizta_205 tmizta_239 | 141=tmizta_240 X;tmizta_240 Y;tmizta_240 Z
145=EcoDriving tmizta_244 1;EcoDriving tmizta_244 2;EcoDriving tmizta_244 3;EcoDriving tmizta_244 4;EcoDriving tmizta_245 1;EcoDriving tmizta_245 2;EcoDriving tmizta_245 3;EcoDriving tmizta_245 4;EcoDriving tmizta_246 1;EcoDriving tmizta_246 2;EcoDriving tmizta_246 3;EcoDriving tmizta_246 4;EcoDriving tmizta_247 1;EcoDriving tmizta_247 2;EcoDriving tmizta_247 3;EcoDriving tmizta_247 4;EcoDriving tmizta_248 1;EcoDriving tmizta_248 2;EcoDriving tmizta_248 3;EcoDriving tmizta_248 4
170=tmizta_252 tmizta_253;tmizta_252 tmizta_254;tmizta_252 tmizta_255;tmizta_252 tmizta_256
180=tmizta_257 tmizta_267
181=tmizta_268 tmizta_269;tmizta_268 tmizta_270;tmizta_268 tmizta_271;tmizta_268 tmizta_272;tmizta_268 tmizta_273
189=tmizta_268 tmizta_167 | 196=tmizta_268 tmizta_285;tmizta_268 tmizta_286;tmizta_268 tmizta_287
197=tmizta_268 tmizta_288;tmizta_268 tmizta_166
198=tmizta_268 tmizta_289 (tmizta_290);tmizta_268 tmizta_289 (tmizta_291) | 205=tmizta_354
221=tmizta_355 abbr_047 16 | 254=tmizta_358 abbr_047 3)";

QStringList headingsOf(int field)
{
    QStringList headings;
    for (const CsvColumn& column : csvColumns()) {
        if (column.field() == field)
            headings += headingText(column);
    }
    return headings;
}

// A language in which doors have a marker and degrees their sign.
QString marked(const QString& key)
{
    if (key == "tmizta_211")
        return QStringLiteral("Door <val>: in");
    if (key == "abbr_017")
        return QString::fromUtf8("°C");
    return key == "tmizta_206" ? QStringLiteral("Acc<val>eration") : key;
}

QStringList csv(const TelemetryPages& pages, const TelemetryTitles& titles = {})
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const auto eventText = [](quint16 code) { return code == 35 ? QString::fromUtf8("Стоянка") : QString(); };
    if (!writeTelemetryCsv(buffer, storeOf(pages), titles, eventText))
        return {QStringLiteral("failed")};
    return QString::fromLocal8Bit(buffer.data()).split(QStringLiteral("\r\n"));
}

} // namespace

class TestCsv : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "UTC");
        tzset();
    }

    void columns()
    {
        std::set<int> items;
        std::set<int> fields;
        int before = 0;
        for (const CsvColumn& column : csvColumns()) {
            items.insert(column.item);
            fields.insert(column.field());
            QVERIFY(column.field() >= before);
            before = column.field();
        }
        QCOMPARE(items.size(), std::size_t{kColumns});
        QCOMPARE(fields.size(), std::size_t{255});
    }

    void headings()
    {
        static const QRegularExpression between("\n| \\| ");
        for (const QString& line : QString::fromUtf8(kHeadings).split(between, Qt::SkipEmptyParts)) {
            const QString field = line.section('=', 0, 0);
            QCOMPARE(field + '=' + headingsOf(field.toInt()).join(';'), line);
        }
        const TextsAs language(marked);
        QCOMPARE(headingsOf(109).join(';'), QStringLiteral("Door 1: in;tmizta_212 1"));
        QCOMPARE(headingsOf(106).join(';'),
                 QStringLiteral("tmizta_205 Acc;tmizta_205 Acc Y;tmizta_205 Acc Z"));
    }

    // Two records with different masks and a packet: the columns are those of either record, a record leaves
    // quoted blanks, a packet bare ones.
    void rows()
    {
        for (const char* encoding : {"UTF-8", "windows-1251"}) {
            QTextCodec::setCodecForLocale(QTextCodec::codecForName(encoding));
            rowsInThisEncoding();
        }
    }

    // The columns stay apart in every row, whatever the records hold.
    void everyCellHasItsPlace()
    {
        std::mt19937 random(5);
        TelemetryPages pages = randomPages(random, 40);
        pages.push_back(std::make_unique<TmiPage_Zeta3>(
            176, 30, FieldMask::fromText(std::string(kFieldCount, '1')), TmiPage_Zeta3::ValueBlock{}));
        const QStringList lines = csv(pages);
        QCOMPARE(lines.size(), 43);
        QCOMPARE(lines[0].count(';'), kColumns + 1);
        for (std::size_t i = 0; i < pages.size(); ++i) {
            const QString& line = lines[static_cast<int>(i) + 1];
            QCOMPARE(line.count(';'), kColumns);
            if (!pages[i]->isExtra())
                QCOMPARE(line.count(QLatin1String("=\"")), kColumns);
        }
    }

private:
    void rowsInThisEncoding()
    {
        const TextsAs language(marked);
        TelemetryPages pages;
        pages.push_back(recordOf({{element("NumPage"), 7},
                                  {element("Code"), 35},
                                  {element("Time"), 1700000000},
                                  {element("User2Byte_2"), 0x0105}}));
        pages.push_back(
            recordOf({{element("Code"), 99}, {element("StateNGauge"), 0x2B}, {element("Temp1"), 251}}));
        pages.push_back(packetOf(QByteArray::fromHex("08000000630000f153652b00f15365feffffff030000002a070000"
                                                     "000020410e0100002040"),
                                 QByteArray(14, '\0'),
                                 QByteArray::fromHex("01087b000000000000000902aaaa0308ff00000000000000"
                                                     "0210") +
                                     "0123456789ABCDEF"));
        TelemetryTitles titles;
        titles.userTypes[17] = QStringLiteral("b");
        const QStringList lines = csv(pages, titles);
        QCOMPARE(lines.size(), 5);
        QCOMPARE(lines[0],
                 QStringLiteral("tmizta_123;tmizta_124;tmizta_125;GLONASS/GPS;tmizta_146;tmizta_147;"
                                "%1;tmizta_356 abbr_047 2;tmizta_359;")
                     .arg(QString::fromUtf8("Т1")));
        QCOMPARE(lines[1], QString::fromUtf8("=\"7\";=\"Стоянка\";=\"14.11.2023 22:13:20\";"
                                             "=\"\";=\"\";=\"\";=\"\";=\"00000001   00000101\";"));
        QCOMPARE(lines[2], QString::fromUtf8("=\"\";=\"99\";=\"\";=\"tmizta_028\";=\"tmizta_030\";=\"10\";"
                                             "=\"-5 °C\";=\"\";"));
        QCOMPARE(lines[3],
                 QStringLiteral("=\"8\";=\"99\";=\"14.11.2023 22:13:20\";"
                                "=\"tmizta_028\";=\"tmizta_122\";=\"10\";;;"
                                "tmizta_361: 123 (0x00000000007B)tmizta_120 RFID: 255 (0x0000000000FF)"
                                "tmizta_362: 0123456789ABCDEF"));
        QCOMPARE(lines[4], QString());

        // Alone, packets have no columns.
        pages.erase(pages.begin(), pages.begin() + 2);
        QCOMPARE(csv(pages)[0], QStringLiteral("tmizta_359;"));
        QVERIFY(csv(pages)[1].startsWith(QLatin1String("tmizta_361: 123 (")));
        QCOMPARE(csv({}), QStringList({QString(), QString()}));
    }
};

QTEST_GUILESS_MAIN(TestCsv)
#include "tst_csv.moc"
