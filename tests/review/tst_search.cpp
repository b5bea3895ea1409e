// Settings are found by words of either language.

#include "document/configuration.h"
#include "review/file_keys.h"
#include "review/search.h"
#include "review/search_words.h"
#include "review/setting_words.h"
#include "settings/all_settings.h"
#include "support/data_table.h"

#include <QTranslator>
#include <QtTest>

using vlk::review::Hit;
using vlk::review::Search;

class SearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const char* language : {"ru", "en"}) {
            auto& translator = translators_.emplace_back(std::make_unique<QTranslator>());
            QVERIFY(translator->load(QString(VLK_TEXTS "/") + language));
            texts_.push_back([&translator = *translator](const char* key) {
                const QString text = translator.translate(nullptr, key);
                return text.isNull() ? QString::fromLatin1(key) : text;
            });
        }
        configuration_.edit("TRANS/SRV1/addr", "gps.example.com");
        configuration_.edit("TRANS/AP1/pass", "geheim");
    }

    void bestFirst_data()
    {
        DataTable<QString, QString> table({"query", "first"});
        table.row("caption", "Период проверки", "TRANS/RULES/pingTimer")
            .row("the other language", "maximum hdop", "")
            .row("English while Russian is on show", "hdop above", "TRACK/COORDFLT/maxHDOP")
            .row("case and order of words", "ОСНОВНОЙ порт", "TRANS/SRV1/port")
            .row("group of the other language", "main port", "TRANS/SRV1/port")
            .row("both languages at once", "main порт", "TRANS/SRV1/port")
            .row("without the dots", "четность", "RS485/OPTIONS/parity")
            .row("begun words", "часов пояс", "SYSTEM/TIME/zone")
            .row("value", "gps.example", "TRANS/SRV1/addr")
            .row("value with its unit", "8.00 в", "SYSTEM/FUEL/blockVolt")
            .row("key", "COORDFLT/minSats", "TRACK/COORDFLT/minSats")
            .row("field of the record", "запись HDOP", "PROTOCOL/ZETA/mask 63")
            .row("event", "сработке датчика IN2", "OUTPUTS/LINE1/actions 1")
            .row("what it could be", "egts", "TRANS/SRV1/protocol")
            .row("a field before the switch above it", "сервер", "TRANS/SRV1/addr")
            .row("what can be set now before what cannot", "address", "TRANS/SRV1/addr")
            .row("a page's title before fields of the record", "температура", "TEMPSENS/SENS1/min")
            .row("another ending", "датчик температуры", "TEMPSENS/SENS1/min")
            .row("what it is also called", "тревога температура", "TEMPSENS/SENS1/min")
            .row("the same in the other language", "temperature alarms", "TEMPSENS/SENS1/min")
            .row("the whole caption of a switch", "использовать сервер", "TRANS/SRV1/use")
            .row("SIM card in Russian", "сим карта", "TRANS/AP1/operator")
            .row("SIM card for short", "симка", "TRANS/AP1/operator")
            .row("Bluetooth in Russian", "блютуз", "BLUETOOTH/GLOBAL/use")
            .row("sensors of Bluetooth for short", "ble топливо", "BLUETOOTH/SENS1/type")
            .row("the same in English", "ble fuel", "BLUETOOTH/SENS1/type")
            .row("the same by letters", "адрес блютуз", "BLUETOOTH/SENS1/macaddr")
            .row("fuel sensor for short", "дут", "RS485/OPTIONS/owner1")
            .row("an end of a range", "температура максимум", "TEMPSENS/SENS1/max")
            .row("speed limit", "speed limit", "TRACK/POINTS/maxSpeed")
            .row("immobilizer", "immobilizer", "OUTPUTS/LINE1/mode")
            .row("engine blocking", "engine blocking", "OUTPUTS/LINE1/mode")
            .row("engine blocking in Russian", "блокировка двигателя", "OUTPUTS/LINE1/mode")
            .row("an adjective", "температурная тревога", "TEMPSENS/SENS1/min")
            .row("battery of the vehicle", "аккумулятор", "SYSTEM/PWRSENS/alarmLvl")
            .row("button for help", "кнопка sos", "SENSORS/IN1/normState")
            .row("no field that no tab shows", "tyre pressure", "RS485/TPMS/type")
            .row("reefer", "холодильник", "RS485/OPTIONS/owner1")
            .row("how often", "reporting interval", "TRACK/POINTS/moveTimer")
            .row("object by its login", "логин объекта", "TRANS/SRV1/objID")
            .row("what is on show before what a choice would show", "температура bluetooth",
                 "BLUETOOTH/SENS1/type")
            .row("type of a sensor before those of its kinds", "bluetooth датчик 1 тип",
                 "BLUETOOTH/SENS1/type")
            .row("the same in two languages", "bluetooth sensor 1 тип", "BLUETOOTH/SENS1/type")
            .row("device before what it has", "топливо rs-485", "RS485/OPTIONS/owner1")
            .row("two languages, the other way round", "порт server", "TRANS/SRV1/port")
            .row("no secret by its value", "geheim", "")
            .row("nothing", "qwertz", "")
            .row("a word that is nowhere", "порт qwertz", "");
    }
    void bestFirst()
    {
        QFETCH(QString, query);
        QFETCH(QString, first);
        const vlk::TextsFrom shown(texts_[0]);
        Search search(tables(), texts_[1]);
        const std::vector<Hit> hits = search.find(query);
        QCOMPARE(hits.empty() ? QString() : told(hits.front()), first);
    }

    // A path that no setting has would be found by nobody.
    void otherNamesHaveSettings()
    {
        QSet<QString> paths;
        for (const vlk::Values* values : tables()) {
            for (int row = 0; row < values->count(); ++row) {
                const QString path = QString(values->row(row).filePath).remove(QRegularExpression("\\d"));
                paths << path << path.section('/', 0, 0);
                if (const auto* mask = values->setting(row).as<vlk::Mask>()) {
                    for (const vlk::MaskField& field : mask->fields)
                        paths << path + '/' + field.widget;
                }
            }
        }
        for (const vlk::review::SearchWords& words : vlk::review::kSearchWords)
            QVERIFY2(paths.contains(words.path), words.path);
    }

    void followsValuesAndLanguage()
    {
        Search search(tables());
        {
            const vlk::TextsFrom shown(texts_[0]);
            QVERIFY(!search.find("порт").empty());
            QVERIFY(search.find("49152").empty());
            configuration_.edit("TRANS/SRV1/port", "49152");
            QCOMPARE(told(search.find("49152").front()), QString("TRANS/SRV1/port"));
        }
        const vlk::TextsFrom shown(texts_[1]);
        search.retranslate();
        QVERIFY(search.find("порт").empty());
        QVERIFY(!search.find("Main port").empty());
    }

    // What installers ask for in their own words, and the setting that they mean.
    void inWordsOfInstallers_data()
    {
        DataTable<QString>({"first"})
            .row("485 адрес", "RS485/FS1/address")
            .row("адрес дут", "RS485/FS1/address")
            .row("датчик топлива", "RS485/OPTIONS/owner1")
            .row("скорость порта", "RS485/OPTIONS/boudrate")
            .row("апн", "TRANS/AP1/name")
            .row("пин код", "TRANS/AP1/pin")
            .row("егтс", "TRANS/SRV1/protocol")
            .row("порт сервера", "TRANS/SRV1/port")
            .row("резервный сервер", "TRANS/SRV2/addr")
            .row("период отправки", "TRANS/RULES/cnctTimer")
            .row("пинг", "TRANS/RULES/pingTimer")
            .row("роуминг", "TRANS/ROAMSIM1/mode")
            .row("скорость", "TRACK/POINTS/maxSpeed")
            .row("угол поворота", "TRACK/POINTS/angle")
            .row("ГОСНОМЕР", "TRANS/OBJECT/name")
            .row("зажигание", "SENSORS/IN1/ign")
            .row("датчик удара", "ACCEL/SENSORS/sh1")
            .row("пароль смс", "SYSTEM/PASS/SMS")
            .row("мак адрес", "BLUETOOTH/SENS1/macaddr")
            .row("низкое напряжение", "SYSTEM/PWRSENS/alarmLvl")
            .row("рфид", "RS485/RFID/type")
            .row("сглаживание топлива", "RS485/FS1/filterMode")
            .row("название О1", "OUTPUTS/LINE1/nickname") // in Cyrillic
            .row("Т1 максимум", "TEMPSENS/SENS1/max")
            .row("глушение", "OUTPUTS/LINE1/mode")
            .row("485 address", "RS485/FS1/address")
            .row("fuel sensor address", "RS485/FS1/address")
            .row("fuel sensor", "RS485/OPTIONS/owner1")
            .row("port speed", "RS485/OPTIONS/boudrate")
            .row("apn", "TRANS/AP1/name")
            .row("pin code", "TRANS/AP1/pin")
            .row("server ip", "TRANS/SRV1/addr")
            .row("backup server", "TRANS/SRV2/addr")
            .row("heartbeat", "TRANS/RULES/pingTimer")
            .row("upload interval", "TRANS/RULES/cnctTimer")
            .row("roaming", "TRANS/ROAMSIM1/mode")
            .row("speeding", "TRACK/POINTS/maxSpeed")
            .row("speed", "TRACK/POINTS/maxSpeed")
            .row("turn angle", "TRACK/POINTS/angle")
            .row("parking interval", "TRACK/POINTS/stopTimer")
            .row("Number Plate", "TRANS/OBJECT/name")
            .row("ignition", "SENSORS/IN1/ign")
            .row("panic button", "SENSORS/IN1/normState")
            .row("tilt sensor", "ACCEL/SENSORS/sh4")
            .row("sms password", "SYSTEM/PASS/SMS")
            .row("daylight saving", "SYSTEM/TIME/DST")
            .row("low voltage", "SYSTEM/PWRSENS/alarmLvl")
            .row("card reader", "RS485/RFID/type")
            .row("ble", "BLUETOOTH/GLOBAL/use")
            .row("термодатчик", "TEMPSENS/SENS1/min")
            .row("thermometer", "TEMPSENS/SENS1/min")
            .row("одометр", "PROTOCOL/ZETA/mask 58")
            .row("odometer", "PROTOCOL/ZETA/mask 58");
    }
    void inWordsOfInstallers()
    {
        QFETCH(QString, first);
        const QString query = QString::fromUtf8(QTest::currentDataTag());
        // The language on show does not count.
        for (const std::size_t shown : {0, 1}) {
            const vlk::TextsFrom texts(texts_[shown]);
            const std::vector<Hit> hits = Search(tables(), texts_[1 - shown]).find(query);
            QCOMPARE(hits.empty() ? QString() : told(hits.front()), first);
        }
    }

    // However much else speaks for it.
    void lettersInsideOfWordsComeLast()
    {
        const vlk::TextsFrom texts(texts_[1]);
        const std::vector<Hit> hits = Search(tables(), texts_[0]).find("IN1");
        const auto isLine = [this](const Hit& hit) { return told(hit).startsWith("SENSORS/IN1/"); };
        const auto isLogin = [this](const Hit& hit) { return told(hit) == "TRANS/AUTOAPN/login1"; };
        const auto login = std::ranges::find_if(hits, isLogin);
        QVERIFY(login != hits.end() && std::ranges::count_if(hits, isLine) > 10);
        QVERIFY(std::none_of(login, hits.end(), isLine));
    }

    // Lists of settings show their words alone. Of the uses of a line or a sensor each has its own ones.
    void noTwoAreCalledTheSame()
    {
        const auto& keys = vlk::review::FileKeys::all();
        for (const vlk::TextSource& texts : texts_) {
            const vlk::TextsFrom shown(texts);
            QHash<QString, QString> paths;
            QStringList same;
            for (int key = 0; key < keys.count(); ++key) {
                const vlk::TableLayout& layout = keys.layout(keys[key].table);
                const int row = keys[key].rows.front();
                if (layout.rows[row].target != row)
                    continue; // a place of a value that has others
                const auto words = vlk::review::wordsOf(layout, row);
                const QString called = QStringList{words.page, words.group, words.caption}.join('|');
                if (paths.contains(called))
                    same << QString("%1 = %2: %3").arg(paths[called], keys[key].path, called);
                paths[called] = keys[key].path;
            }
            QVERIFY2(same.isEmpty(), qPrintable(same.join('\n')));
        }
    }

    // All of them where nothing is asked, and each once.
    void everything()
    {
        Search search(tables());
        QSet<QString> all;
        const std::vector<Hit> hits = search.find(" ");
        for (const Hit& hit : hits)
            all << told(hit);
        QCOMPARE(static_cast<std::size_t>(all.size()), hits.size());
        for (const char* path : {"TRANS/OBJECT/name", "BLUETOOTH/SENS4/type", "OUTPUTS/LINE1/actions 16"})
            QVERIFY2(all.contains(path), path);
    }

private:
    std::vector<const vlk::Values*> tables() const
    {
        std::vector<const vlk::Values*> tables;
        for (const vlk::Values& values : configuration_.tables())
            tables.push_back(&values);
        return tables;
    }
    QString told(const Hit& hit) const
    {
        const vlk::Values& values = configuration_.tables()[hit.table];
        return values.layout().prefix() + values.row(hit.row).path +
               (hit.part < 0 ? QString() : QString(" %1").arg(hit.part));
    }

    vlk::Configuration configuration_{vlk::allSettings()};
    std::vector<std::unique_ptr<QTranslator>> translators_;
    std::vector<vlk::TextSource> texts_;
};

QTEST_GUILESS_MAIN(SearchTest)
#include "tst_search.moc"
