// The rows of the settings against the golden tables of golden/ (its README tells the form), which somebody
// else took from the definition of the file: what both say of a key has to agree.

#include "absent/params/user_param_settings.h"
#include "settings/all_settings.h"
#include "settings/quick_settings.h"
#include "support/files.h"
#include "support/setting_samples.h"

#include <QtTest>

namespace {

struct GoldenKey
{
    QString path;
    QString kind;
    QString load;
    QString reset;
    QString values;
    QStringList widgets;
};

// One line, written out for each number of its range; lines of one range below each other interleave.
class GoldenTable
{
public:
    explicit GoldenTable(const QString& text)
    {
        const QStringList lines = text.split('\n', Qt::SkipEmptyParts).mid(1);
        for (const QString& line : lines) {
            if (line.startsWith('#'))
                continue;
            static const QRegularExpression range(R"(\{(\d+)\.\.(\d+)\})");
            const QRegularExpressionMatch found = range.match(line);
            if (found.captured() != run_)
                flush();
            run_ = found.captured();
            pending_ << line;
        }
        flush();
    }
    const QVector<GoldenKey>& keys() const { return keys_; }

private:
    void flush()
    {
        const QStringList ends = QString(run_).remove('{').remove('}').split("..");
        for (int n = ends.value(0).toInt(); n <= ends.value(1).toInt(); ++n) {
            for (QString line : pending_) {
                if (!run_.isEmpty())
                    line.replace(run_, QString::number(n)).replace("{n}", QString::number(n));
                const QStringList cells = line.split('\t');
                keys_.append({cells[0], cells[1], cells[2], cells[3], cells.value(4),
                              cells.value(5).split(' ', Qt::SkipEmptyParts)});
            }
            if (run_.isEmpty())
                break;
        }
        pending_.clear();
    }

    QString run_;
    QStringList pending_;
    QVector<GoldenKey> keys_;
};

QString plain(QString text)
{
    if (text == "\"\"")
        return {};
    if (text.startsWith("tr:")) {
        const QStringList parts = text.mid(3).split('|');
        return parts.size() == 1 ? parts[0] : QString(parts[0]).replace("%1", parts[1]);
    }
    return text.replace("{model}", "R-7106");
}

// Words in braces stand for texts that the product chooses.
bool isFree(const QString& text)
{
    return text.contains('{') && !text.contains("{model}");
}

QStringList widgetsOf(const vlk::Setting& setting)
{
    QStringList names;
    vlk::tables::eachWidget(setting, [&](std::string_view, std::string_view widget, vlk::Numbers numbers) {
        names << vlk::numberedName(widget, numbers);
    });
    if (const vlk::Shown* shown = setting.shown(); shown && shown->column > 0)
        names << shown->widget.tail;
    if (const auto* mask = setting.as<vlk::Mask>()) {
        for (const vlk::MaskField& field : mask->fields)
            names << vlk::numberedName(field.widget, field.number);
    }
    return names;
}

} // namespace

class GoldenSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pages_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::newRow("TRANS") << QStringList{"transfer"};
        QTest::newRow("PROTOCOL") << QStringList{"data_set"};
        QTest::newRow("TRACK") << QStringList{"track"};
        QTest::newRow("SYSTEM") << QStringList{"system"};
        QTest::newRow("RS485") << QStringList{"rs",      "rs_dtacan", "rs_dv01", "rs_rfid",
                                              "rs_tach", "rs_tpms",   "rs_flds", "rs_pcnt"};
        QTest::newRow("SENSORS") << QStringList{"lines_in"};
        QTest::newRow("TEMPSENS") << QStringList{"temperature"};
        QTest::newRow("ACCEL") << QStringList{"accel"};
        QTest::newRow("OUTPUTS") << QStringList{"lines_out"};
        QTest::newRow("BLUETOOTH") << QStringList{"bluetooth", "bt_fls", "bt_temp", "bt_ain", "bt_hs",
                                                  "bt_as",     "bt_axs", "bt_fw",   "bt_us",  "bt_universal"};
        QTest::newRow("") << QStringList{"quick"};
    }
    void pages()
    {
        QFETCH(QStringList, files);
        const QString section = QTest::currentDataTag();
        auto tables = vlk::allSettings();
        if (section.isEmpty())
            tables = {&vlk::kQuickSettings};
        const auto table =
            std::ranges::find_if(tables, [&](const auto* known) { return known->section == section; });
        QVERIFY2(table != tables.end(), "no rows of this section");
        compared_ << section;
        values_ = vlk::Values(**table);
        const vlk::TableLayout& layout = values_.layout();
        QStringList wrong;
        std::vector<bool> known(layout.rows.size());
        for (const QString& file : files) {
            // The keys of a file are in the order of the rows. A key that several files have stands in the
            // file of each under other conditions.
            std::vector<std::size_t> found;
            const GoldenTable golden(
                QString::fromUtf8(readFile(QString(VLK_SOURCE "/tests/settings/golden/%1.tsv").arg(file))));
            for (const GoldenKey& key : golden.keys()) {
                const auto row = std::ranges::find_if(layout.rows, [&](const auto& candidate) {
                    return candidate.filePath == key.path && candidate.base->stored &&
                           !known[&candidate - layout.rows.data()];
                });
                if (row == layout.rows.end()) {
                    wrong << key.path + ": no row";
                    continue;
                }
                found.push_back(row - layout.rows.begin());
                known[found.back()] = true;
                compare(key, static_cast<int>(found.back()), &wrong);
            }
            QVERIFY(!found.empty());
            QVERIFY2(std::ranges::is_sorted(found), qPrintable(file + ": another order"));
        }
        for (std::size_t row = 0; row < layout.rows.size(); ++row) {
            const auto& place = layout.rows[row];
            // The quick window's list of access points has the rows of the full one's.
            const bool isKnown = known[row] || (section.isEmpty() && place.path.contains("/AUTOAPN/"));
            if (place.base->stored && place.key != "page" && !isKnown)
                wrong << place.path + ": not in the golden table";
        }
        QVERIFY2(wrong.isEmpty(), qPrintable('\n' + wrong.join('\n')));
    }

    // They stand beside the data set where a tracker has the User tab; this one has not.
    void slotsOfTheUser()
    {
        const vlk::Values slots(vlk::kUserParamSettings);
        const GoldenTable table(readFile(VLK_SOURCE "/tests/settings/golden/user_parameters.tsv"));
        QStringList golden;
        for (const GoldenKey& key : table.keys())
            golden << key.path + '=' + plain(key.load);
        QStringList rows;
        for (int i = 0; i < slots.count(); ++i)
            rows << "PROTOCOL/" + slots.row(i).path + '=' + slots.value(i);
        QCOMPARE(rows, golden);
    }

    // Every table of the file is compared above.
    void everyTableIsGolden()
    {
        for (const vlk::SettingsTable* table : vlk::allSettings())
            QVERIFY2(compared_.contains(table->section), table->section);
    }

private:
    void compare(const GoldenKey& key, int index, QStringList* wrong)
    {
        const auto check = [&](const char* what, const QString& is, const QString& golden) {
            if (is != golden)
                *wrong << QString("%1: %2 is %3, golden %4").arg(key.path, what, is, golden);
        };
        const vlk::Setting& row = values_.setting(index);
        const vlk::Setting& holder = values_.setting(values_.holder(index));
        check("kind", kindOf(row, holder), key.kind == "index" ? "choice" : key.kind);
        if (!isFree(key.load))
            check("load default", loaded(index), plain(key.load));
        values_.reset();
        const QString reset = key.reset == "=" ? key.load : key.reset;
        // A form that is not on show is reset too.
        const bool hidden =
            values_.layout().elements[values_.row(index).group].group->present && reset != "absent";
        const bool written = hidden || values_.isWritten(index);
        if (key.reset == "-")
            check("reset", row.base().onReset == vlk::OnReset::KeepsValue ? "-" : "resets", "-");
        else if (!isFree(reset))
            check("reset", written ? values_.written(index) : "absent", plain(reset));
        if (!key.values.isEmpty())
            check("values", valuesOf(holder, index, key), key.values);
        QStringList widgets = widgetsOf(holder);
        // A box that says whether the value counts at all is a setting of its own.
        for (const vlk::Sets* save : values_.row(index).saves) {
            if (save->when)
                widgets += widgetsOf(values_.setting(save->when.row));
        }
        for (const QString& widget : key.widgets) {
            if (!widgets.contains(widget))
                *wrong << key.path + ": not in " + widget;
        }
    }

    static QString kindOf(const vlk::Setting& row, const vlk::Setting& holder)
    {
        const vlk::Setting& own = row.is<vlk::Link>() ? holder : row;
        return std::visit([](const auto& kind) { return nameOf(kind); }, own.kind);
    }

    // What a save writes after a load of a file that lacks the key, the row's own conditions met.
    QString loaded(int index)
    {
        values_.reset();
        QVector<QPair<QString, QString>> values = presenceOf(values_, index);
        vlk::XmlDocument in(documentWith(values), "DEVICE");
        readFrom(*in.root(), values_);
        // The tables have the elements of every use below every line, whatever its list offers.
        return values_.isWritten(index) ? values_.written(index) : vlk::loadDefault(values_.setting(index));
    }

    QString valuesOf(const vlk::Setting& row, int index, const GoldenKey& key) const
    {
        if (const auto* flag = row.as<vlk::Flag>())
            return flag->inverted ? "1|0" : QString("0|%1").arg(flag->on);
        if (row.number())
            return rangeOf(*row.number(), index, key);
        if (const auto* choice = row.as<vlk::Choice>())
            return codesOf(*choice, key);
        if (const auto* period = row.as<vlk::Period>()) {
            QStringList parts;
            for (const vlk::PeriodPart& part : period->parts)
                parts << QString("%1..%2 %3")
                             .arg(part.least)
                             .arg(part.most)
                             .arg(part.seconds == 60     ? "min"
                                  : part.seconds == 3600 ? "h"
                                                         : "d");
            return parts.join(", ");
        }
        if (const auto* digits = row.as<vlk::Digits>()) {
            const auto boxes = std::ranges::count_if(digits->positions, [](const vlk::Position& position) {
                return static_cast<bool>(position.widget);
            });
            return QString("%1 of %2").arg(boxes).arg(digits->positions.size());
        }
        if (const auto* mask = row.as<vlk::Mask>())
            return QString::number(mask->length);
        if (const auto* text = row.as<vlk::Text>())
            return text->mask      ? QString("mask ") + text->mask
                   : text->pattern ? QString("/%1/").arg(text->pattern)
                                   : QString("max %1").arg(text->maxLength);
        return {};
    }

    QString rangeOf(const vlk::Number& row, int index, const GoldenKey& key) const
    {
        // Two values that keep a distance share the scale of their handles.
        vlk::Limits ends{row.least, row.most};
        for (const vlk::Distance* rule : values_.row(index).distances) {
            if (rule->gapFrom.row != index)
                ends = {values_.setting(rule->first.row).number()->least,
                        values_.setting(rule->second.row).number()->most};
        }
        // The range that holds where the element of the key is.
        const vlk::TableLayout::Row& place = values_.row(index);
        const vlk::When& present = values_.layout().elements[place.group].group->present;
        for (const vlk::RangeWhen* rule : values_.row(place.target).ranges) {
            if (present && rule->when.row == present.row && QString(rule->when.codes) == present.codes)
                ends = {rule->least, rule->most};
        }
        if (row.hexadecimal)
            return vlk::fileNumber(row, ends.least) + ".." + vlk::fileNumber(row, ends.most);
        const double factor = row.factor;
        const QString range =
            QString("%1..%2")
                .arg(QString::number(ends.least * factor, 'g', 12))
                .arg(key.values.endsWith("..") ? QString() : QString::number(ends.most * factor, 'g', 12));
        return row.zeroIsOff ? "0|" + range : range;
    }

    static QString codesOf(const vlk::Choice& row, const GoldenKey& key)
    {
        vlk::Limits limits;
        limits.offers = row.offers;
        QStringList offered;
        QStringList known;
        for (const vlk::Code& code : row.codes)
            (vlk::offersCode(code, limits) ? offered : known) << (*code.code ? code.code : "\"\"");
        // A list that another setting gives.
        if (row.offers && !*row.offers)
            return QString("%1|%2..%3").arg(row.none, known.first(), known.last());
        // The order of boxes is that of the form.
        if (row.codes[0].widget || row.codes.back().widget) {
            const QStringList golden = key.values.split('|');
            std::sort(offered.begin(), offered.end(), [&](const QString& a, const QString& b) {
                return golden.indexOf(a) < golden.indexOf(b);
            });
        }
        return offered.join('|') + (known.isEmpty() ? QString() : QString(" (%1)").arg(known.join('|')));
    }

    vlk::Values values_{*vlk::allSettings().front()};
    QStringList compared_;
};

QTEST_GUILESS_MAIN(GoldenSettingsTest)
#include "tst_golden_settings.moc"
