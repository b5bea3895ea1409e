// What a person types is what is written. Every field of every page and of both windows that takes a text or
// a number gets keys: inside, at and beyond its limits, with either decimal sign, in both languages, ended by
// Tab, by Enter or by a save without either. What is saved is what one edit of the typed value makes of the
// file in the settings alone: that value, and what the rules between settings name, and nothing else.

#include "dialog/config_pages.h"
#include "dialog/form_config_light.h"
#include "dialog/widget_config_full.h"
#include "settings/all_settings.h"
#include "settings/quick_settings.h"
#include "support/brackets.h"
#include "support/device.h"
#include "support/setting_samples.h"
#include "support/typing.h"
#include "translations/text_files.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTreeWidget>
#include <QtTest>

#include <memory>

class KeyboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { device().initialize(nullptr); }

    void everyField_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<bool>("isFull");
        for (const QString& language : kLanguages) {
            QTest::addRow("full window, %s", qPrintable(language)) << language << true;
            QTest::addRow("quick window, %s", qPrintable(language)) << language << false;
        }
    }
    void everyField()
    {
        QFETCH(QString, language);
        QFETCH(bool, isFull);
        QLocale::setDefault(QLocale(language));
        texts_ = readTexts(language);
        sign_ = QLatin1Char(language == "ru" ? '.' : ',');
        fields_ = 0;
        wrong_.clear();
        std::unique_ptr<QWidget> window;
        if (isFull) {
            auto full = std::make_unique<VLK_Widget_Config_Full>();
            full->show();
            full->pages().forEach([this](auto& page) { typeInto(page); });
            window = std::move(full);
        } else {
            auto quick = std::make_unique<VLK_Form_Config_Light>();
            quick->show();
            typeInto(*quick);
            window = std::move(quick);
        }
        for (const QString& line : std::as_const(wrong_))
            qInfo().noquote() << line;
        QCOMPARE(wrong_.size(), 0);
        // Fewer would mean that the walk passes fields over.
        QVERIFY2(fields_ >= (isFull ? 230 : 58), qPrintable(QString::number(fields_)));
    }

private:
    template <class Page>
    void typeInto(Page& page)
    {
        vlk::PageSettings& settings = page.settings();
        vlk::Values core(settings.values().table());
        for (int index = 0; index < core.count(); ++index) {
            const vlk::Setting& setting = core.setting(index);
            if (typedInto(setting, {}).empty())
                continue;
            const int key = keyOf(core, index);
            const QByteArray file = fileFor(core, key);
            load(page, core, file);
            const std::vector<Typed> samples = typedInto(setting, core.limits(index));
            const QList<QWidget*> fields = fieldsOf(settings.binder(), setting);
            if (fields.contains(nullptr) || !core.isWritten(key) || isReadOnly(fields[0]))
                continue;
            ++fields_;
            for (std::size_t i = 0; i < samples.size(); ++i) {
                load(page, core, file);
                switchOn(settings, core, fields[0]);
                if (samples[i].value)
                    core.edit(index, *samples[i].value);
                const QByteArray expected = saved(core);
                const QString end = QStringList{"<Tab>", "<Enter>", ""}.at((index + static_cast<int>(i)) % 3);
                const QStringList keys = samples[i].keys.split('|');
                for (int part = 0; part < fields.size(); ++part) {
                    bringUp(fields[part]);
                    typeInField(fields[part], setting, keys.at(part), end);
                }
                const QByteArray written = saved(page);
                // Two values that keep a distance may leave each other less room than each has alone.
                const bool isAsTyped = !samples[i].value || !core.row(index).distances.empty() ||
                                       core.value(index) == *samples[i].value;
                if (written != expected || !isAsTyped)
                    wrong_ << QString("%1: %2%3 gives\n%4\ninstead of\n%5")
                                  .arg(core.row(index).path, samples[i].keys, end,
                                       differing(written, expected), differing(expected, written));
            }
        }
    }

    std::vector<Typed> typedInto(const vlk::Setting& setting, const vlk::Limits& limits) const
    {
        return std::visit([&](const auto& row) { return ::typedInto(row, limits, sign_); }, setting.kind);
    }

    // Its boxes, or else its widget; null for one whose form is not there.
    static QList<QWidget*> fieldsOf(const vlk::Binder& binder, const vlk::Setting& setting)
    {
        QList<QWidget*> fields;
        const auto add = [&](const vlk::Name& name) {
            fields << binder.forms().find(name, setting.base().numbers);
        };
        std::visit(
            [&](const auto& row) {
                if constexpr (requires { eachBox(row, add); })
                    eachBox(row, add);
                else
                    add(setting.shown()->widget);
            },
            setting.kind);
        return fields;
    }

    // The key in which a file of this tracker holds the value; a value may go into another one with each use
    // of a line.
    static int keyOf(vlk::Values& core, int index)
    {
        for (int key = index; key < core.count(); ++key) {
            if (core.holder(key) != index || !core.row(key).base->stored)
                continue;
            core.reset();
            vlk::XmlDocument in(fileFor(core, key), "DEVICE");
            readFrom(*in.root(), core);
            if (core.isWritten(key))
                return key;
        }
        return index;
    }

    // A file in which the setting stands, and a switched-off number is on.
    static QByteArray fileFor(const vlk::Values& core, int index)
    {
        const vlk::Setting& setting = core.setting(index);
        auto values = presenceOf(core, index);
        for (const vlk::Sets* save : core.row(index).saves) {
            if (save->when)
                values.append({core.row(save->when.row).filePath, "1"});
        }
        if (const vlk::Number* number = setting.number(); number && number->zeroIsOff)
            values.append({core.row(index).filePath, vlk::fileNumber(*number, std::max(1.0, number->least))});
        return documentWith(values);
    }

    template <class Page>
    static void load(Page& page, vlk::Values& core, const QByteArray& file)
    {
        vlk::XmlDocument in(file, "DEVICE");
        page.setDefaults();
        page.loadFromXml(in.root());
        core.reset();
        readFrom(*in.root(), core);
    }

    // Edits what a person would who wants the field enabled: it, and what it stands in.
    static void switchOn(vlk::PageSettings& settings, vlk::Values& core, const QWidget* field)
    {
        for (const QWidget* widget = field; widget; widget = widget->parentWidget()) {
            for (const vlk::Enable& rule : settings.values().table().all<vlk::Enable>()) {
                if (!targetNames(rule).contains(widget->objectName()))
                    continue;
                for (const vlk::When& condition : rule.when) {
                    if (core.holds(rule) || !condition)
                        break;
                    const QStringList codes = codesOf(condition);
                    QString code = condition.negated ? QString("0") : codes.value(0, "1");
                    const vlk::Choice* choice = core.choice(condition.row);
                    for (std::size_t i = 0; choice && i < choice->codes.size(); ++i) {
                        if (condition.negated && codes.contains(code))
                            code = choice->codes[i].code;
                    }
                    settings.binder().set(condition.row, code);
                    core.edit(condition.row, code);
                }
            }
        }
    }

    template <class Page>
    static QByteArray saved(Page& page)
    {
        vlk::XmlDocument out(QString(), "DEVICE");
        if constexpr (std::is_same_v<Page, vlk::Values>)
            writeTo(*out.root(), page);
        else
            page.saveToXml(out.root());
        return out.text();
    }

    static bool isReadOnly(const QWidget* field)
    {
        const auto* line = qobject_cast<const QLineEdit*>(field);
        return line && line->isReadOnly();
    }

    // Shows and enables the field, as a person would who goes there.
    static void bringUp(QWidget* field)
    {
        for (QWidget* widget = field; widget; widget = widget->parentWidget()) {
            if (auto* stack = qobject_cast<QStackedWidget*>(widget->parentWidget())) {
                if (auto* tabs = qobject_cast<QTabWidget*>(stack->parentWidget()))
                    tabs->setCurrentWidget(widget);
                else
                    stack->setCurrentWidget(widget);
            }
            widget->setEnabled(true);
            widget->show();
        }
        field->window()->activateWindow();
    }

    static void typeInField(QWidget* field, const vlk::Setting& setting, const QString& keys,
                            const QString& end)
    {
        auto* tree = qobject_cast<QTreeWidget*>(field);
        if (!tree) {
            type(field, "<All>" + keys + end);
            return;
        }
        const QModelIndex cell =
            tree->model()->index(setting.base().numbers.outer - 1, setting.base().column);
        tree->setCurrentIndex(cell);
        QTest::keyClick(tree, Qt::Key_F2);
        auto* editor = tree->viewport()->findChild<QLineEdit*>();
        type(editor, "<All>" + keys + (end.isEmpty() ? QString("<Enter>") : end));
        // The cell takes it when the key is through, and lets go of the editor then. Tab opens the next one.
        QCoreApplication::processEvents();
        tree->setCurrentIndex({});
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // The lines of one text that the other lacks.
    static QString differing(const QByteArray& text, const QByteArray& other)
    {
        const QList<QByteArray> others = other.split('<');
        QStringList lines;
        for (const QByteArray& line : text.split('<')) {
            if (!others.contains(line))
                lines << QString::fromLocal8Bit(line.trimmed());
        }
        return lines.join('\n');
    }

    Texts texts_;
    const TextsAs translator_{[this](const QString& key) { return texts_.value(key); }};
    QLatin1Char sign_{'.'};
    int fields_ = 0;
    QStringList wrong_;
};

QTEST_MAIN(KeyboardTest)
#include "tst_keyboard.moc"
