// Every key of every settings page that declares its keys: loads, shows, saves and resets.

#include "dialog/widget_config_full.h"
#include "pages/form_config_transfer.h"
#include "support/device.h"
#include "xml/xml_document.h"

#include <QSpinBox>
#include <QtTest>

#include <memory>

namespace {

QString keyText(CXmlSection* root, const QString& section, const QString& group, const QString& key)
{
    const CXmlSectionPtr page = root->child(section);
    return page->child(group)->getString(key, QStringLiteral("(missing)"));
}

} // namespace

class PagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        device().initialize(nullptr);
        window_ = std::make_unique<VLK_Widget_Config_Full>();
    }

    void everyKey_data()
    {
        QTest::addColumn<QString>("section");
        QTest::addColumn<QString>("element");
        forEachPage([](auto&, const vlk::KeySection& section) {
            for (const vlk::KeyGroup& group : section.groups())
                QTest::addRow("%s/%s", qUtf8Printable(section.name()), qUtf8Printable(group.element()))
                    << section.name() << group.element();
        });
    }
    void everyKey()
    {
        QFETCH(QString, section);
        QFETCH(QString, element);
        int found = 0;
        forEachPage([&](auto& page, const vlk::KeySection& keys) {
            for (const vlk::KeyGroup& group : keys.groups()) {
                if (keys.name() == section && group.element() == element) {
                    ++found;
                    checkGroup(page, section, group);
                }
            }
        });
        QCOMPARE(found, 1);
    }

    // Two different states end in the same one.
    void resetForgetsWhatWasLoaded()
    {
        forEachPage([](auto& page, const vlk::KeySection& keys) {
            QStringList states[2];
            for (int state = 0; state < 2; ++state) {
                for (const vlk::KeyGroup& group : keys.groups()) {
                    for (const auto& row : group.rows())
                        row.show(state == 0 ? row.samples.first() : row.samples.last());
                }
                page.setDefaults();
                for (const vlk::KeyGroup& group : keys.groups()) {
                    for (const auto& row : group.rows()) {
                        if (row.reset)
                            states[state] << group.element() + '/' + row.key + '=' + row.value();
                    }
                }
            }
            QCOMPARE(states[0], states[1]);
        });
    }

    void mistakesAreFound()
    {
        QSpinBox box;
        const auto found = [](const vlk::KeyGroup& group) { return group.problems().join('\n'); };
        QCOMPARE(found(vlk::KeyGroup("G").number("a", &box, 0).number("b", &box, 0)), QString());
        QVERIFY(found(vlk::KeyGroup("G").number("a", &box, 0).number("a", &box, 0)).contains("bound twice"));
        QVERIFY(found(vlk::KeyGroup("G").number("a", static_cast<QSpinBox*>(nullptr), 0)).contains("G/a"));
        const auto nothing = [] { return 0; };
        QVERIFY(
            found(vlk::KeyGroup("G").custom("a", 0, [](int) {}, nothing, {}, {"0", "1"})).contains("G/a"));
        QVERIFY(found(vlk::KeyGroup("G").custom("a", 0, [](int) {}, nothing, {&box}, {"0"})).contains("G/a"));
    }

private:
    // Calls `action(page, section)` for every page with declared keys.
    template <class Action>
    void forEachPage(Action action) const
    {
        window_->pages().forEach([&](auto& page) {
            if constexpr (requires { page.keys(); })
                action(page, page.keys());
        });
    }

    template <class Page>
    void checkGroup(Page& page, const QString& section, const vlk::KeyGroup& group)
    {
        QCOMPARE(group.problems(), QStringList());
        int rounds = 0;
        for (const auto& row : group.rows())
            rounds = qMax(rounds, row.samples.size());
        for (int round = 0; round < rounds; ++round) {
            const auto sample = [round](const vlk::KeyGroup::Row& row) {
                return row.samples.at(round % row.samples.size());
            };
            page.setDefaults();
            vlk::XmlDocument in({}, QStringLiteral("DEVICE"));
            {
                const CXmlSectionPtr part = in.root()->child(section);
                const CXmlSectionPtr element = part->child(group.element(), 3);
                for (const auto& row : group.rows())
                    element->setString(row.key, sample(row));
                element->commit();
            }
            page.loadFromXml(in.root());
            vlk::XmlDocument out({}, QStringLiteral("DEVICE"));
            page.saveToXml(out.root());
            for (const auto& row : group.rows()) {
                const QByteArray where = (group.element() + '/' + row.key).toUtf8();
                QVERIFY2(row.value() == sample(row), (where + " shows " + row.value().toUtf8()).constData());
                QCOMPARE(keyText(out.root(), section, group.element(), row.key), sample(row));
            }
        }
        for (const auto& row : group.rows()) {
            const bool differs =
                std::any_of(row.samples.begin(), row.samples.end(),
                            [&](const QString& value) { return value != row.loadDefault(); });
            QVERIFY2(differs, qPrintable(row.key));
        }
    }

    std::unique_ptr<VLK_Widget_Config_Full> window_;
};

QTEST_MAIN(PagesTest)
#include "tst_pages.moc"
