// Texts are keys: every key in the sources has a text in both languages, and no text stands without a key.

#include "support/data_table.h"
#include "telemetry/files/csv_columns.h"

#include <QDirIterator>
#include <QDomDocument>
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
            "[\">]((?:cfgt\\d+|cfgwl|cfgwnd|tmizta|tmiw|tmiex|tmift\\d|wrd|abbr|wb)_[a-z0-9_]+)[\"<]"));
        for (const char* folder : {"/plugin", "/workbench"}) {
            QDirIterator files(QStringLiteral(VLK_SOURCE) + QLatin1String(folder), {"*.cpp", "*.h", "*.ui"},
                               QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                QFile file(files.next());
                QVERIFY(file.open(QIODevice::ReadOnly));
                auto found = key.globalMatch(QString::fromUtf8(file.readAll()));
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

        for (const char* language : {"ru", "en"}) {
            QFile file(QStringLiteral(VLK_SOURCE "/translations/%1.ts").arg(language));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QDomDocument document;
            QString error;
            QVERIFY2(document.setContent(&file, &error), qPrintable(error));
            const QDomNodeList messages = document.elementsByTagName(QStringLiteral("message"));
            for (int i = 0; i < messages.size(); ++i) {
                const QDomElement message = messages.at(i).toElement();
                const QString id = message.attribute(QStringLiteral("id"));
                if (texts_[language].contains(id))
                    repeated_ << QStringLiteral("%1 in %2").arg(id, language);
                texts_[language][id] = message.firstChildElement(QStringLiteral("translation")).text();
            }
        }
        QCOMPARE(repeated_, QStringList());
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
            if (!keys_.contains(text.key()) && std::none_of(families_.begin(), families_.end(), begins))
                unused << text.key();
        }
        missing.sort();
        QVERIFY2(missing.isEmpty(), qPrintable("no text: " + missing.join(' ')));
        QVERIFY2(unused.isEmpty(), qPrintable("no key: " + unused.join(' ')));
    }

    // A text that is split at a value, or takes one, does so in every language; and English holds no
    // Cyrillic.
    void languagesAgree()
    {
        static const QRegularExpression cyrillic(QStringLiteral("[а-яА-ЯёЁ]"));
        for (auto text = texts_["ru"].cbegin(); text != texts_["ru"].cend(); ++text) {
            const QString english = texts_["en"].value(text.key());
            for (const char* marker : {"<val>", "<vaL>", "%1", "%2"})
                QVERIFY2(text->contains(QLatin1String(marker)) == english.contains(QLatin1String(marker)),
                         qPrintable(text.key()));
            QVERIFY2(!english.contains(cyrillic), qPrintable(text.key()));
        }
    }

private:
    using Texts = QMap<QString, QString>;

    QSet<QString> keys_;
    QSet<QString> families_;
    QMap<QString, Texts> texts_; // by language
    QStringList repeated_;
};

QTEST_GUILESS_MAIN(TextsTest)
#include "tst_texts.moc"
