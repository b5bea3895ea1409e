// The rules of the configuration document, seen through files: golden texts written by hand, our own reader,
// and QDomDocument as a reader that is not ours.

#include "support/data_table.h"
#include "support/files.h"
#include "xml/serialize.h"
#include "xml/xml_document.h"
#include "xml/xml_text.h"

#include <QDomDocument>
#include <QTemporaryDir>
#include <QtTest>

using vlk::XmlDocument;

namespace {

const QByteArray kDeclaration = "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n";

class TestDocument : public QObject
{
    Q_OBJECT

private:
    // Empty: a file that is not there yet.
    QString put(const QByteArray& content)
    {
        const QString path = folder_.filePath(QString::number(++files_) + ".xml");
        return content.isEmpty() ? path : writeFile(path, content);
    }

    // What the file holds after a load and a save of everything in it.
    QByteArray resaved(const QByteArray& content)
    {
        const QString path = put(content);
        closeDocument(CXmlSection(path, "DEVICE").document(), true);
        return readFile(path);
    }

    QTemporaryDir folder_;
    int files_ = 0;

private Q_SLOTS:
    void writesEveryKind()
    {
        const QString path = put({});
        XmlDocument document(path, "DEVICE");
        CXmlSection* const root = document.root();
        root->clear();
        root->setString("vendor", QString::fromUtf8("Завод \"<&'>\" €"));
        root->setInt("model", -7);
        const auto track = root->child("TR CK");
        track->setString("page", "first");
        track->setString("zone", "2");
        track->setString("page", "last");
        const auto group = track->child("P-1", CXmlNode::Empty);
        group->setText("note", nullptr);
        group->child("never written");
        group->commit();
        const auto inner = track->child("INNER", CXmlNode::Attributed);
        inner->child("LEAF", CXmlNode::Empty);
        track->setChildValue("Name", "a<b&c");
        track->setChildValue("Nothing", "");
        track->commit();
        document.save();

        QByteArray golden = kDeclaration;
        golden +=
            "<DEVICE vendor=\"\xC7\xE0\xE2\xEE\xE4 &quot;&lt;&amp;&apos;&gt;&quot; \x88\" model=\"-7\">\n"
            "\t<TR_32_CK page=\"last\" zone=\"2\">\n"
            "\t\t<P-1 note=\"\"/>\n"
            "\t\t<INNER>\n"
            "\t\t\t<LEAF/>\n"
            "\t\t</INNER>\n"
            "\t\t<Name>a&lt;b&amp;c</Name>\n"
            "\t\t<Nothing />\n"
            "\t</TR_32_CK>\n"
            "</DEVICE>\n";
        QCOMPARE(readFile(path), golden);

        QDomDocument independent;
        QVERIFY(independent.setContent(readFile(path)));
        QCOMPARE(independent.documentElement().attribute("vendor"), QString::fromUtf8("Завод \"<&'>\" €"));
        QCOMPARE(independent.elementsByTagName("Name").at(0).toElement().text(), QString("a<b&c"));

        XmlDocument again(path, "DEVICE");
        QCOMPARE(again.root()->getString("vendor"), QString::fromUtf8("Завод \"<&'>\" €"));
        QCOMPARE(again.root()->child("TR CK")->getString("Name"), QString("a<b&c"));
    }

    // What the reader makes of a file, seen in how the writer puts it back.
    void resaves_data()
    {
        DataTable<QByteArray, QByteArray>({"body", "written"})
            .row("empty elements are text elements", "<A/> <B></B>", "\t<A />\n\t<B />\n")
            .row("white space keeps an element", "<A> </A>", "\t<A>\n\t</A>\n")
            .row("an attribute keeps an element", "<A a='1'/>", "\t<A a=\"1\">\n\t</A>\n")
            .row("children of a text element follow it", "<A>text<B>\n</B></A>",
                 "\t<A>text</A>\n\t<B>\n\t</B>\n")
            .row("text is trimmed, the last piece counts", "<A> one <![CDATA[ two ]]></A>", "\t<A>two</A>\n")
            .row("one decoding after the parser",
                 "<A v='&amp;lt;_33_&amp;nbsp;&amp;amp;quot;'>\n</A><B>&amp;apos;_33_</B>",
                 "\t<A v=\"&lt;! &quot;\">\n\t</A>\n\t<B>&apos;!</B>\n")
            .row("names of the format", "<A_32_B_-9_ a_32_='1'/>",
                 "\t<A_32_B_-9_ a_32_=\"1\">\n\t</A_32_B_-9_>\n")
            .row("the first of like attributes", "<A a='1' b='2' a='3' b=''/>",
                 "\t<A a=\"1\" b=\"2\">\n\t</A>\n")
            .row("long values of elements nobody opens", "<A v='" + QByteArray(10000, 'x') + "'/>",
                 "\t<A v=\"" + QByteArray(10000, 'x') + "\">\n\t</A>\n");
    }
    void resaves()
    {
        QFETCH(QByteArray, body);
        QFETCH(QByteArray, written);
        QCOMPARE(resaved("<DEVICE>" + body + "</DEVICE>"),
                 kDeclaration + "<DEVICE>\n" + written + "</DEVICE>\n");
    }

    void escapesNames()
    {
        const QString characters = QString::fromUtf8(" &><\"'!:;%`~@#$^*()-+=|\\÷×,/");
        const int codes[] = {32, 38, 62, 60, 34, 39, 33, 58, 59,  37, 96, 126, 64, 35,
                             36, 94, 42, 40, 41, 45, 43, 61, 124, 92, -9, -41, 44, 47};
        QCOMPARE(characters.size(), static_cast<int>(std::size(codes)));
        for (int i = 0; i < characters.size(); ++i) {
            const QString name = QString("NAME_1%1b%1").arg(characters[i]);
            const QString escaped = QString("NAME_1_%1_b_%1_").arg(codes[i]);
            QCOMPARE(vlk::escapeName(name), escaped);
            QCOMPARE(vlk::unescapeName(escaped), name);
        }
    }

    // A value set on an element, in the next section on it, in the file and after the way through the file.
    void carriesTexts_data()
    {
        const QString cyrillic(300, QChar(0x0436));
        DataTable<QString, QString>({"text", "carried"})
            .row("254 bytes", cyrillic.left(254), cyrillic.left(254))
            .row("255 bytes", QString(255, '1'), QString(255, '1'))
            .row("256 bytes", QString(256, '1'), QString(255, '1'))
            .row("10,000 bytes", QString(10000, 'x'), QString(255, 'x'))
            .row("300 letters", cyrillic, cyrillic.left(255))
            .row("outside the encoding", QString::fromUtf8("∞ and 😀"), "? and ?")
            .row("lone surrogate", QString(QChar(0xD83D)) + "a", "?a")
            .row("NUL ends it", QString::fromLatin1("ab\0cd", 5), "ab")
            .row("markup", "<![CDATA[ ]]>&#1;\"'", "<![CDATA[ ]]>&#1;\"'");
    }
    void carriesTexts()
    {
        QFETCH(QString, text);
        QFETCH(QString, carried);
        const QString path = put({});
        {
            XmlDocument document(path, "DEVICE");
            const auto group = document.root()->child("GROUP", CXmlNode::Empty);
            group->setString("before", "1");
            group->setString("text", text);
            group->setString("after", "2");
            QCOMPARE(group->getString("text"), carried);
            group->commit();
            QCOMPARE(document.root()->child("GROUP")->getString("text"), carried);
            document.root()->setChildValue("Name", text);
            document.save();
        }
        XmlDocument document(path, "DEVICE");
        const auto group = document.root()->child("GROUP");
        QCOMPARE(group->getString("before"), QString("1"));
        QCOMPARE(group->getString("text"), carried);
        QCOMPARE(group->getString("after"), QString("2"));
        QCOMPARE(document.root()->getString("Name"), carried);
        QDomDocument independent;
        QVERIFY(independent.setContent(readFile(path)));
        QCOMPARE(independent.elementsByTagName("GROUP").at(0).toElement().attribute("text"), carried);
    }

    void readsNumbers_data()
    {
        DataTable<QString, int, double>({"text", "whole", "real"})
            .row("number", "4000", 4000, 4000.0)
            .row("leading blanks and sign", "  -12.5", -12, -12.5)
            .row("plus", "+3e2x", 3, 300.0)
            .row("tail", "12abc", 12, 12.0)
            .row("none", "abc", 0, 0.0)
            .row("empty", "", 0, 0.0)
            .row("comma", "1,5", 1, 1.0)
            .row("not finite", "inf", 0, 0.0)
            .row("32 bits", "4294967295", -1, 4294967295.0);
    }
    void readsNumbers()
    {
        QFETCH(QString, text);
        setlocale(LC_NUMERIC, "ru_RU.UTF-8");
        XmlDocument document(QString(), "DEVICE");
        CXmlSection* const root = document.root();
        root->setString("key", text);
        QTEST(root->getInt("key", 99), "whole");
        QTEST(root->getDouble("key", 99), "real");
        QCOMPARE(root->getFloat("key", 99), static_cast<float>(root->getDouble("key", 99)));
        QCOMPARE(root->getInt("Key", 99), 99);
        QCOMPARE(root->getFloat("", 1.5F), 1.5F);
        QCOMPARE(root->getString("KEY", "other"), QString("other"));
    }

    void commitTakesTheTableBack()
    {
        const QString path = put(kDeclaration + "<DEVICE a='1'>\n<b>old</b>\n<c>\xE6</c>\n</DEVICE>");
        XmlDocument document(path, "DEVICE");
        CXmlSection* const root = document.root();
        root->setInt("b", 5);
        root->setString("d", "first");
        const CXmlSection before(root->document(), root->document()->node(nullptr, "DEVICE"));
        root->commit();
        QCOMPARE(before.getInt("d", 7), 7);
        root->setString("d", "second");
        root->commit();
        const CXmlSection after(root->document(), root->document()->node(nullptr, "DEVICE"));
        QCOMPARE(after.getString("d"), QString("second"));
        document.save();
        QCOMPARE(readFile(path),
                 kDeclaration + "<DEVICE a=\"1\" d=\"second\">\n\t<b>5</b>\n\t<c>?</c>\n</DEVICE>\n");
    }

    void clearReachesOneLevel()
    {
        const QString path = put("<DEVICE a='1'><A a='1'><B a='1'/></A></DEVICE>");
        XmlDocument document(path, "DEVICE");
        const auto a = document.root()->child("A");
        auto b = a->child("B");
        b->clear();
        QCOMPARE(b->getInt("a", 9), 9);
        QCOMPARE(a->child("B")->getInt("a", 9), 1);
        b.reset();
        a->clear();
        QVERIFY(!CXmlSectionPtr(a->firstChild("B")));
        QCOMPARE(document.root()->child("A")->getInt("a", 9), 9);
        document.root()->clear();
        document.save();
        QCOMPARE(readFile(path), kDeclaration + "<DEVICE>\n</DEVICE>\n");
    }

    void findsEntriesInOrder()
    {
        XmlDocument named(put("<DEVICE a='attribute'><a>child</a><b>1</b><b>2</b></DEVICE>"), "DEVICE");
        QCOMPARE(named.root()->getString("a"), QString("attribute"));
        QCOMPARE(named.root()->getInt("b", 0), 1);

        XmlDocument document(put("<DEVICE D='0'><T/><D v='1'/><D v='2'/><T/><D v='3'/></DEVICE>"), "DEVICE");
        QStringList seen;
        for (CXmlSectionPtr row(document.root()->firstChild("D")); row;
             row.reset(document.root()->nextChild()))
            seen += row->getString("v");
        QCOMPARE(seen.join(' '), QString(" 1 2 3"));
        document.root()->setInt("new", 1);
        QVERIFY(!CXmlSectionPtr(document.root()->firstChild("new")));
        QVERIFY(!CXmlSectionPtr(document.root()->firstChild("none")));
    }

    void survivesBadFiles_data()
    {
        QByteArray binary;
        for (int i = 0; i < 5000; ++i)
            binary += static_cast<char>(i * i >> 3);
        QByteArray attributes;
        for (int i = 0; i < 100000; ++i)
            attributes += " a" + QByteArray::number(i) + "=''";
        DataTable<QByteArray>({"content"})
            .row("truncated", "<DEVICE a='1'><TRACK b='2'")
            .row("one blank", " ")
            .row("no element", kDeclaration)
            .row("two roots", "<DEVICE/><DEVICE/>")
            .row("binary", binary)
            .row("NULs", QByteArray(1000, '\0'))
            .row("100,000 levels", QByteArray("<A>").repeated(100000) + QByteArray("</A>").repeated(100000))
            .row("1,001 attributes",
                 "<DEVICE><A" + attributes.left(attributes.indexOf(" a1001=")) + "/></DEVICE>")
            .row("100,000 attributes", "<DEVICE><A" + attributes + "/></DEVICE>")
            .row("900,000 elements", "<DEVICE>" + QByteArray("<A/>").repeated(900000) + "</DEVICE>")
            .row("declared utf-16", "<?xml version='1.0' encoding='utf-16'?><DEVICE/>")
            .row("entities that grow",
                 "<!DOCTYPE D [<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;'>]><DEVICE a='&b;'>&b;</DEVICE>")
            .row("an empty internal subset", "<!DOCTYPE DEVICE []><DEVICE/>")
            .row("an internal subset behind an identifier", "<!DOCTYPE DEVICE SYSTEM 'a>' [ ]><DEVICE/>")
            .row("an internal subset behind a comment",
                 "<!-- <!DOCTYPE DEVICE> --><!DOCTYPE DEVICE [<!ENTITY a 'b'>]><DEVICE a='&a;'/>")
            .row("declarations that nest",
                 "<!DOCTYPE D [<!ELEMENT D " + QByteArray("(").repeated(1000000) + ">]><DEVICE/>")
            .row("too long", "<DEVICE>" + QByteArray(CSerialize::kMaxFileSize, ' ') + "</DEVICE>");
    }
    void survivesBadFiles()
    {
        QFETCH(QByteArray, content);
        const QString path = put(content);
        XmlDocument document(path, "DEVICE");
        CXmlSection* const root = document.root();
        QVERIFY(!document.isOpen());
        QVERIFY(!CXmlSectionPtr(root->section("A")));
        QCOMPARE(root->getInt("a", 5), 5);
        root->setInt("a", 1);
        root->setChildValue("b", "c");
        root->clear();
        document.save();
        QVERIFY(readFile(path) == content);
    }

    void acceptsPlainDocumentTypes()
    {
        for (const char* type :
             {"<!DOCTYPE DEVICE>", "<!DOCTYPE DEVICE SYSTEM \"a[b>.dtd\">",
              "<!DOCTYPE DEVICE PUBLIC 'x' 'y'\n>", "<!-- <!DOCTYPE D [ --><?note [?>\n<!DOCTYPE DEVICE >"}) {
            XmlDocument document(put(kDeclaration + type + "\n<DEVICE a='1'/>"), "DEVICE");
            QVERIFY2(document.root()->getInt("a", 9) == 1, type);
        }
    }

    void opensWhatIsNoDocumentYet()
    {
        const QString path = put({});
        QVERIFY(XmlDocument(path, "DEVICE").isOpen());
        QVERIFY(readFile(path).isEmpty());
        QVERIFY(XmlDocument(path, "DEVICE").isOpen());
        XmlDocument inMemory(QString(), "DEVICE");
        inMemory.root()->child("A")->child("B", CXmlNode::Empty);
        inMemory.save();
        QVERIFY(CXmlSectionPtr(inMemory.root()->child("A")->firstChild("B")));

        const QString other = put("<FUEL a='1'/>");
        XmlDocument document(other, "DEVICE");
        QCOMPARE(document.root()->getInt("a", 9), 9);
        document.save();
        QCOMPARE(readFile(other), kDeclaration + "<DEVICE>\n</DEVICE>\n");
    }
};

} // namespace

QTEST_APPLESS_MAIN(TestDocument)
#include "tst_document.moc"
