// The vocabulary of user parameters: stored keys and display texts turn into each other, and the catalogues
// have their shape.

#include "absent/params/param_catalogues.h"
#include "absent/params/user_params.h"
#include "settings/element_types.h"
#include "support/data_table.h"

#include <QtTest>

class UserParamsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysAndTexts_data()
    {
        DataTable<QString, QString>({"key", "shown"})
            .row("plain", "fs3", "FS, cfgt5_352 3")
            .row("last plain", "wt4", "WT, cfgt5_360 4")
            .row("tilt", "as4", "AS, cfgt5_361 4")
            .row("tilt about X", "as5", "AS, cfgt5_363 1")
            .row("tilt about Y", "as12", "AS, cfgt5_364 4")
            .row("tilt about Z", "as14", "AS, cfgt5_365 2")
            .row("events", "ce12", "CE, cfgt18_002 12")
            .row("along X", "ag1", "AG, cfgt5_425 1")
            .row("along Y", "ag2", "AG, cfgt5_426 1")
            .row("along Z", "ag3", "AG, cfgt5_427 1")
            .row("next sensor", "ag4", "AG, cfgt5_425 2")
            .row("last sensor", "ag12", "AG, cfgt5_427 4")
            .row("magnet", "hs2", "HS, cfgt5_428 2");
    }
    void keysAndTexts()
    {
        QFETCH(QString, key);
        QFETCH(QString, shown);
        QCOMPARE(params_.keyToDisplay(key), shown);
        QCOMPARE(params_.displayToKey(shown), key);
    }

    void unknownOnes()
    {
        for (const char* key : {"", "f", "ag0", "ag13", "up2", "co12", "FS3", "xx1", "tm1"})
            QCOMPARE(params_.keyToDisplay(key), QString());
        for (const char* shown :
             {"", ",", "CO, cfgt5_367", "fs, cfgt5_352 3", "AG, something 3", "MB, MB1,  1,  0"})
            QCOMPARE(params_.displayToKey(shown), QString());
    }

    void textsAlone_data()
    {
        DataTable<QString, QString>({"shown", "key"})
            .row("name with a comma", "UP, U1P2, cfgt17_072 abbr_047 12", "up12")
            .row("axis apart from its number", "AG, cfgt5_426, 3", "ag8")
            .row("another tilt", "AS, whatever 3", "as3")
            .row("blanks around", " IS ,  cfgt5_354 1 ", "is1");
    }
    void textsAlone()
    {
        QFETCH(QString, shown);
        QTEST(params_.displayToKey(shown), "key");
    }

    // Every kind of value, and numbers that are none.
    void kinds()
    {
        QStringList shown;
        for (int i = -1; i <= 23; ++i) {
            const auto type = static_cast<userParamType>(i);
            shown << params_.paramCode(type) + QString::number(params_.paramSize(type));
        }
        QCOMPARE(shown.join(' '),
                 QString("0 FS4 HD2 IS1 LS4 PR2 SL1 ST4 UB1 WT4 0 0 0 AS2 AS2 AS2 AS2 UP0 CE0 0 AG2 "
                         "AG2 AG2 HS2 0"));
        QCOMPARE(params_.paramName(userParamType::Link, 3), QString("cfgt5_354 3"));
        QCOMPARE(params_.paramName(static_cast<userParamType>(9), 3), QString("3"));
    }

    void elementTypes()
    {
        for (const vlk::ElementType& type : vlk::kElementTypes)
            QCOMPARE(params_.typeCodeSize(type.code), QString(type.code).left(1).toInt());
        for (const char* code : {"", "3u", "8", "2U"})
            QCOMPARE(params_.typeCodeSize(code), 0);
        QCOMPARE(params_.typeText("2u"), QString("2 wrd_017, wrd_020"));
        QCOMPARE(params_.typeText("8f"), QString("8 wrd_016, wrd_022"));
        QCOMPARE(params_.typeText(""), QString());
    }

    void catalogues()
    {
        const auto shape = [](const QList<VLK_UserParam_CAN*>& list) {
            QStringList bits;
            int last = 0;
            for (const VLK_UserParam_CAN* entry : list) {
                if (entry->id() <= last ||
                    entry->number() != list.indexOf(const_cast<VLK_UserParam_CAN*>(entry)) + 1)
                    return QString("%1 stands wrong").arg(entry->id());
                last = entry->id();
                for (const VLK_UserParam_CAN_Bit* bit : entry->bits()) {
                    if (bit->id() <= last)
                        return QString("%1 stands wrong").arg(bit->id());
                    last = bit->id();
                }
                if (entry->type().endsWith('b'))
                    bits << QString("%1:%2").arg(entry->id()).arg(entry->bits().size());
                else if (!entry->bits().isEmpty())
                    return QString("%1 has bits").arg(entry->id());
            }
            return QString("%1 to %2, %3").arg(list.size()).arg(last).arg(bits.join(' '));
        };
        QCOMPARE(shape(params_.counterList()), QString("16 to 16, 14:0 16:0"));
        QCOMPARE(shape(params_.canList(0)), QString("23 to 80, 20:16 38:30 71:8"));
        QCOMPARE(shape(params_.canList(1)),
                 QString("98 to 251, 1:15 18:9 35:14 52:4 61:6 70:8 79:6 88:8 97:8 106:6 115:8 "
                         "124:6 133:6 142:6"));
        QCOMPARE(shape(params_.canList(2)), QString("10 to 10, "));
        for (int i = 0; i < 3; ++i) {
            for (const VLK_UserParam_CAN* entry : params_.canList(i))
                QCOMPARE(params_.typeCodeSize(entry->type()) == 0, i == 2);
        }
        QCOMPARE(params_.counterKey("cfgt5_378"), QString("co12"));
        QCOMPARE(params_.counterKey(""), QString());
        QCOMPARE(params_.counterKey("cfgt5_383"), QString());
    }

private:
    VLK_UserParams params_;
};

QTEST_GUILESS_MAIN(UserParamsTest)
#include "tst_user_params.moc"
