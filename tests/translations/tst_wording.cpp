// One word for one thing, one style, in every text and help page of both languages; and the help names
// buttons and labels as they are.

#include "support/data_table.h"
#include "translations/text_files.h"

#include <QRegularExpression>
#include <QtTest>

namespace {

// What no text of a language, or of both, may show. Letters match in either case, unless the pattern begins
// with (?-i).
struct Rule
{
    const char* name;
    const char* language;
    const char* pattern;
    const char* exceptKeys = ""; // keys that begin so may show it
};

constexpr Rule kRules[] = {
    // One word for one thing: the words that stand for it elsewhere.
    {"tracker", "ru", "прибор|терминал|устройств", "cfgt17_"},
    {"tracker", "en", "\\bdevice|\\bterminal", "cfgt17_"},
    {"read, write", "ru", "скача|\\bсчитать\\b|прошить|загрузить в трекер"},
    {"read, write", "en", "\\bupload"},
    {"configuration", "ru", "профил|файл настроек"},
    {"configuration", "en", "\\bprofile"},
    {"settings, default values", "ru", "\\bопци|дефолт|сброс"},
    {"settings, default values", "en", "preference|factory(?! settings)|\\breset"},
    {"backup", "ru", "бэкап|запасн"},
    {"backup", "en", "(?<!in )\\breserve"},
    {"change, undo, cancel", "ru", "дельта|откат|прервать"},
    {"change, undo, cancel", "en", "\\bdiff\\b|\\babort"},
    {"search, preset, field", "ru", "сканир|пресет|\\bтеги?\\b|\\bтегов"},
    {"search, preset, field", "en", "\\bscan|\\bbuffer"},
    {"track", "ru", "азимут|осреднен|заморозка"},
    {"track", "en", "smoothing|cut-off|azimuth"},
    {"lines", "ru", "\\bНР\\b|\\bНЗ\\b|уставк|антидребезг|красная зона"},
    {"lines", "en", "(?-i)\\bN[OC]\\b|overflow|danger"},
    {"fuel", "ru", "\\bДУТ\\b|таррир|кража"},
    {"fuel", "en", "\\bFLS\\b|fuel gauge|calibration graph|\\bfilling|theft"},
    {"supply", "ru", "\\bбортсет|бортовой сети|\\bАКБ\\b"},
    {"serial line", "ru", "\\bбод\\b|стоповы|паритет|частота опроса|ведомый"},
    {"serial line", "en", "slave ID|endian"},
    {"Bluetooth", "ru", "спарив|паринг|реклам|маячок|наушник"},
    {"calls and SIM card", "ru", "\\bвызов|дозвон|\\bSIM\\b(?!-карт)|симк|гостев"},
    {"calls and SIM card", "en", "\\bSIM\\b(?! cards?\\b)|hotspot"},
    {"driving", "ru", "толчок|датчик угла|разгон"},
    {"driving", "en", "inclinometer|\\bhits?\\b|\\bimpact|\\bhard\\b|\\bsudden|\\bspeeding"},
    {"blocking and keys", "ru", "ширина импульса|\\bчип|\\bтахо\\b|датчик пассажиров"},
    {"blocking and keys", "en", "immobili|\\bSOS\\b|panic|\\bTM key|\\bchip\\b|\\barmed\\b|security"},
    {"equipment", "ru", "холодильник|термодатчик|\\bфото|кан-шина|Гринвич|GMT|\\bвендор"},
    {"equipment", "en", "fridge|reefer|\\bphoto|\\bGMT\\b|vendor|\\bmaker|tyre number"},
    // Spelling.
    {"ё", "ru",
     "\\b(?:еще|вперед|четность|нечет|чет|(?:в|от|под)ключен|определен|сохранен|изменен|удален|завершен|"
     "объем(?:а|ы|ов|ом)?|(?:под)?счет(?:а|ов|ом|чик\\w*)?|прием(?:а|ник\\w*)?)\\b"},
    {"British", "en",
     "\\banalog\\b|\\btires?\\b|\\bcolors?\\b|\\bcenter|\\bgray\\b|authoriz|\\bmeters?\\b|\\bliters?\\b"},
    {"alphabet", "ru", "[а-яё][a-z]|[a-z][а-яё]|°С"},
    {"alphabet", "en", "[а-яё]"},
    // Signs.
    {"quotes", "ru", "[\"„“”]"},
    {"quotes", "en", "[«»„“”]"},
    {"ellipsis", "", "\\.\\.\\.|\\s…"},
    {"ring", "", "[˚º∘○◦]"},
    {"exclamation", "", "!(?!=)"},
    {"unit's dot", "ru", "\\bсек\\b|\\b(?:мин|сут|км|кг|мс)\\.(?!\\s*(?-i:[А-ЯЁA-Z])|\\s*$)"},
    {"unit's blank", "ru",
     "(?-i)(?<!\\w)(?:\\d[\\d.,]*|%\\d) "
     "(?:км|км/ч|м|мс|с|мин|ч|сут|мВ|В|мА|Гц|об/мин|л|л/ч|кг|байта?|бит/с|дБм|°C|%)(?!\\w)"},
    {"unit's blank", "en",
     "(?-i)(?<!\\w)(?:\\d[\\d.,]*|%\\d) "
     "(?:km|km/h|m|ms|s|min|h|d|mV|V|mA|Hz|rpm|l|l/h|kg|B|bytes?|bit/s|dBm|°C|%)(?!\\w)"},
    {"no-break space between words", "", "\\p{L}[,.]?\\x{A0}\\p{L}"},
    {"number's blank", "ru", "№[ \\d%]|\\d \\d{3}\\b"},
    {"number's blank", "en", "No\\.[ \\d%]|\\d \\d{3}\\b"},
};

// Texts that other documents of the tracker quote: they stand letter by letter, whatever the rules say.
const QSet<QString> kQuoted = {
    QStringLiteral("Таррировка датчиков топлива"),
    QStringLiteral("Часовой пояс относительно Гринвича"),
    QStringLiteral("NTP сервер №1"),
    QStringLiteral("NTP сервер №2"),
    QStringLiteral("NTP сервер №3"),
    QStringLiteral("NTP сервер №4"),
    QStringLiteral("В случае утери пароля для управления по USB и GPRS доступ к устройству будет невозможен"),
    QStringLiteral("Окно  осреднения"),
    QStringLiteral("Сбросить значения "),
    QStringLiteral("Тип высокоточного навигационного приемника"),
    QStringLiteral("Отключать счетчик через"),
};

QRegularExpression pattern(const QString& text)
{
    return QRegularExpression(text, QRegularExpression::UseUnicodePropertiesOption |
                                        QRegularExpression::CaseInsensitiveOption);
}

QString withoutTags(QString html)
{
    return html.replace(pattern(QStringLiteral("<[^>]*>")), QStringLiteral("\n"))
        .replace(QLatin1String("&nbsp;"), QString(QChar::Nbsp));
}

QString withoutQuoted(QString page)
{
    for (const QString& text : kQuoted)
        page.remove(text);
    return page;
}

// A text as a button or a label shows it; a colon behind it is layout.
QString caption(QString text)
{
    text.remove(QLatin1String("<br>")).remove(pattern(QStringLiteral("&(?=\\w)")));
    return text.endsWith(QLatin1Char(':')) ? text.chopped(1) : text;
}

} // namespace

class WordingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const QString& language : kLanguages) {
            texts_[language] = readTexts(language);
            help_[language] = readHelp(language);
            QVERIFY(texts_[language].size() > 800 && help_[language].size() > 7);
            all_[language] = texts_[language];
            const Texts& help = help_[language];
            for (auto page = help.cbegin(); page != help.cend(); ++page)
                all_[language][page.key()] = withoutQuoted(withoutTags(*page));
        }
    }

    void keepsTheRule_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("forbidden");
        QTest::addColumn<QString>("exceptKeys");
        for (const Rule& rule : kRules) {
            for (const QString& language : *rule.language ? QStringList{rule.language} : kLanguages)
                QTest::addRow("%s, %s", qPrintable(language), rule.name)
                    << language << rule.pattern << rule.exceptKeys;
        }
    }
    void keepsTheRule()
    {
        QFETCH(QString, language);
        QFETCH(QString, forbidden);
        QFETCH(QString, exceptKeys);
        const QRegularExpression rule = pattern(forbidden);
        QVERIFY2(rule.isValid(), qPrintable(rule.errorString()));
        QStringList found;
        const Texts& texts = all_[language];
        for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
            // By what people call a setting it is found; no window shows those words.
            const bool isSearchWord = text.key().startsWith(QLatin1String("find_"));
            const bool excepted =
                isSearchWord || (!exceptKeys.isEmpty() && text.key().startsWith(exceptKeys));
            const QRegularExpressionMatch match = rule.match(*text);
            if (match.hasMatch() && !excepted && !kQuoted.contains(*text))
                found << QStringLiteral("%1: \"%2\"").arg(text.key(), match.captured());
        }
        QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1String(", "))));
    }

    void quotedTextsStand()
    {
        for (const QString& text : kQuoted)
            QVERIFY2(texts_["ru"].values().contains(text), qPrintable(text));
    }

    // A value, a line break and a mnemonic stand in both languages, in the same number.
    void markersAgree_data()
    {
        QTest::addColumn<QString>("marker");
        for (const char* marker : {"<val>", "<vaL>", "<br>", "&", "%1", "%2", "%3", "%4"})
            QTest::newRow(marker) << marker;
    }
    void markersAgree()
    {
        QFETCH(QString, marker);
        const Texts& russian = texts_[QStringLiteral("ru")];
        for (auto text = russian.cbegin(); text != russian.cend(); ++text)
            QVERIFY2(text->count(marker) == texts_[QStringLiteral("en")].value(text.key()).count(marker),
                     qPrintable(text.key()));
    }

    // Every page is there in both languages, made of as many parts of each sort, and the first page leads to
    // it.
    void helpAgrees()
    {
        const Texts& russian = help_[QStringLiteral("ru")];
        const Texts& english = help_[QStringLiteral("en")];
        QCOMPARE(english.keys(), russian.keys());
        const QString index = QStringLiteral("index.html");
        for (const QString& page : russian.keys()) {
            for (const char* part : {"h1", "h2", "p", "li", "tr", "td", "a href"}) {
                const QRegularExpression tag = pattern(QStringLiteral("<%1\\b").arg(QLatin1String(part)));
                QVERIFY2(russian[page].count(tag) == english[page].count(tag), qPrintable(page + ' ' + part));
            }
            for (const Texts* help : {&russian, &english})
                QVERIFY2(page == index || help->value(index).contains("href=\"" + page), qPrintable(page));
        }
    }

    // What stands in quotes or in bold is a caption, letter by letter, in the help and in texts that quote
    // one. Whatever else needs to stand out is in italics or in the typewriter's letters.
    void quotesCaptions_data()
    {
        DataTable<QString, QString>({"language", "quotes"})
            .row("Russian", "ru", "«(\\w[^»%]*)»|<b>([^<]*)</b>")
            .row("English", "en", "\"(\\w[^\"%]*)\"|<b>([^<]*)</b>");
    }
    void quotesCaptions()
    {
        QFETCH(QString, language);
        QFETCH(QString, quotes);
        QSet<QString> captions;
        for (const QString& text : texts_[language])
            captions << caption(text);
        QStringList unknown;
        int count = 0;
        const auto look = [&](const QString& name, QString text) {
            text.remove(pattern(QStringLiteral("<(?!/?b>)[^>]*>")));
            for (auto found = pattern(quotes).globalMatch(text); found.hasNext(); ++count) {
                const QRegularExpressionMatch match = found.next();
                if (!captions.contains(match.captured(match.lastCapturedIndex())))
                    unknown << name + QLatin1String(": ") + match.captured();
            }
        };
        const Texts& pages = help_[language];
        for (auto page = pages.cbegin(); page != pages.cend(); ++page)
            look(page.key(), *page);
        const Texts& texts = texts_[language];
        for (auto text = texts.cbegin(); text != texts.cend(); ++text)
            look(text.key(), QString(*text).remove(QLatin1String("<b>"))); // a bold value is no caption
        QVERIFY2(unknown.isEmpty(), qPrintable(unknown.join(QLatin1Char('\n'))));
        QVERIFY(count > 50);
    }

private:
    QMap<QString, Texts> texts_; // by language
    QMap<QString, Texts> help_;
    QMap<QString, Texts> all_; // the texts and what the pages say
};

QTEST_GUILESS_MAIN(WordingTest)
#include "tst_wording.moc"
