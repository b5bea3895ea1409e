// Texts are keys: every key in the sources has a text in both languages, and no text stands without a key.
// Beside that the comments of the sources are looked at for names that have gone.

#include "support/data_table.h"
#include "telemetry/files/csv_columns.h"
#include "translations/text_files.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QTranslator>
#include <QtTest>

#include <algorithm>

namespace {

// Takes down what is asked for: headings of columns spell their keys in a form of their own.
class RecordingTranslator : public QTranslator
{
public:
    explicit RecordingTranslator(QSet<QString>& asked) : asked_(asked) {}

    QString translate(const char* /*context*/, const char* key, const char* /*disambiguation*/,
                      int /*n*/) const override
    {
        asked_ << QString::fromLatin1(key);
        return {};
    }

private:
    QSet<QString>& asked_;
};

} // namespace

class TextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        static const QRegularExpression key(QStringLiteral(
            "[\">]((?:cfgt\\d+f?|cfgwl|cfgwnd|tmizta|tmiw|tmiex|tmift\\d|wrd|abbr|typed|rec|rev|adv|"
            "find|cli|wb)_[a-z0-9_]+)[\"<]"));
        for (const char* folder : {"/plugin", "/typing", "/workbench"}) {
            QDirIterator files(QStringLiteral(VLK_SOURCE) + QLatin1String(folder), {"*.cpp", "*.h", "*.ui"},
                               QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                QFile file(files.next());
                QVERIFY(file.open(QIODevice::ReadOnly));
                const QString source = QString::fromUtf8(file.readAll());
                takeWords(source);
                auto found = key.globalMatch(source);
                while (found.hasNext()) {
                    const QString name = found.next().captured(1);
                    // "wb_event_" with a number behind it: a family that the code completes.
                    if (name.endsWith(QLatin1Char('_')))
                        families_ << name;
                    else
                        keys_ << name;
                }
            }
        }
        QVERIFY(keys_.size() > 100);
        {
            RecordingTranslator recorder(keys_);
            QCoreApplication::installTranslator(&recorder);
            for (const vlk::CsvColumn& column : vlk::csvColumns())
                vlk::headingText(column);
        }

        QStringList repeated;
        for (const QString& language : kLanguages) {
            texts_[language] = readTexts(language, &repeated);
            QVERIFY(!texts_[language].isEmpty());
        }
        QCOMPARE(repeated, QStringList());
    }

    void everyKeyHasAText_data()
    {
        DataTable<QString>({"language"}).row("Russian", "ru").row("English", "en");
    }
    void everyKeyHasAText()
    {
        QFETCH(QString, language);
        const Texts& texts = texts_[language];
        QStringList missing;
        for (const QString& key : std::as_const(keys_)) {
            if (texts.value(key).trimmed().isEmpty())
                missing << key;
        }
        QStringList unused;
        for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
            const auto begins = [&](const QString& family) { return text.key().startsWith(family); };
            if (!keys_.contains(text.key()) && std::ranges::none_of(families_, begins))
                unused << text.key();
        }
        missing.sort();
        QVERIFY2(missing.isEmpty(), qPrintable("no text: " + missing.join(' ')));
        QVERIFY2(unused.isEmpty(), qPrintable("no key: " + unused.join(' ')));
    }

    // Each button of a window is reached by a letter of its own.
    void buttonsHaveMnemonics()
    {
        const QStringList windows[] = {
            // With the buttons of the bar that offers edits kept from before.
            {"wrd_047", "wrd_048", "cfgwnd_001", "wrd_051", "wrd_053", "wrd_052", "wrd_027", "wrd_054",
             "rev_141", "rev_142", "rev_143", "rev_147"},
            {"wrd_055", "cfgwnd_002", "wrd_054", "rev_141", "rev_142", "rev_143", "rev_147"},
            {"wrd_061", "wrd_062", "wrd_027", "wrd_054"},
            {"rec_001", "rec_006", "rec_007", "wrd_027"},
            // With the button of the bar that tells of a save. "Cancel" stands beside commands that are
            // closed meanwhile, and shares a letter with one.
            {"wrd_027",    "wrd_054",    "tmiw_004",   "wrd_061",  "wrd_062",  "tmiw_005",
             "tmiw_008",   "tmiw_010",   "tmiw_014",   "tmiw_015", "tmiw_016", "tmiw_024",
             "tmiw_030",   "tmiw_195",   "tmiw_140",   "tmiw_141", "tmiw_196", "tmiw_143",
             "tmift1_060", "tmift2_011", "tmift2_012", "rec_080"}};
        for (const QString& language : kLanguages) {
            for (const QStringList& keys : windows) {
                QSet<QString> letters;
                for (const QString& key : keys) {
                    const QString text = texts_[language].value(key);
                    QCOMPARE(text.count('&'), 1);
                    letters << text.section('&', 1).left(1).toLower();
                }
                QCOMPARE(letters.size(), keys.size());
            }
        }
    }

    // Comments call a constant by its name, which begins with a k; one of a single word may be a word.
    void commentsNameConstants()
    {
        static const QRegularExpression severalWords(QStringLiteral("^[a-z]\\w*[A-Z]"));
        QStringList wrong;
        for (const QString& word : std::as_const(told_)) {
            if (word.contains(severalWords) && !named_.contains(word) &&
                named_.contains('k' + word.left(1).toUpper() + word.mid(1)))
                wrong << word;
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(' ')));
    }

private:
    void takeWords(const QString& source)
    {
        static const QRegularExpression name(QStringLiteral("[A-Za-z_]\\w+"));
        for (const QStringRef& line : source.splitRef('\n')) {
            const int comment = line.indexOf(QLatin1String("//"));
            for (auto found = name.globalMatch(line); found.hasNext();) {
                const QRegularExpressionMatch word = found.next();
                (comment >= 0 && word.capturedStart() > comment ? told_ : named_) << word.captured();
            }
        }
    }

    QSet<QString> named_; // words of the code
    QSet<QString> told_;  // words of its comments
    QSet<QString> keys_;
    QSet<QString> families_;
    QMap<QString, Texts> texts_; // by language
};

QTEST_GUILESS_MAIN(TextsTest)
#include "tst_texts.moc"
