// The four tabs of a record of protocol 3.0, as a host and a user see them: messages in, labels and messages
// out.

#include "support/scripted_host.h"
#include "telemetry/text/item_text.h"
#include "telemetry/text/signal_level.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <random>

using vlk::Message;

namespace {

// Translates by key, as a host does.
class Texts : public QTranslator
{
public:
    explicit Texts(const QString& language) { load(language, QStringLiteral(VLK_TEXTS)); }

    QString translate(const char*, const char* key, const char*, int n) const override
    {
        return QTranslator::translate(nullptr, key, nullptr, n);
    }
};

struct Record
{
    vlk::FieldMask mask;
    TmiPage_Zeta3::ValueBlock block{};

    TmiPage_Zeta3 page() const { return {176, 30, mask, block}; }
    QByteArray bytes() const
    {
        QByteArray all("\xb0\x1e");
        all.append(reinterpret_cast<const char*>(mask.bytes().data()), vlk::FieldMask::kBytes);
        for (int i = 0; i < vlk::kFieldCount; ++i) {
            if (mask.test(i))
                all.append(reinterpret_cast<const char*>(block.data()) + vlk::kFields[i].offset,
                           vlk::kFields[i].width);
        }
        return all;
    }
};

Record randomRecord(unsigned seed)
{
    std::mt19937 random(seed);
    Record record{vlk::FieldMask::fromText(std::string(vlk::kFieldCount, '1'))};
    std::ranges::generate(record.block, [&] { return static_cast<std::uint8_t>(random()); });
    return record;
}

} // namespace

class TabsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void labels_data();
    void labels();
    void everyLabelIsKnown();
    void sparseRecordClearsTheRest();
    void cardAndLevel_data();
    void cardAndLevel();
    void absentPartsAreHidden();
    void titles();
    void outputs_data();
    void outputs();
    void mileage_data();
    void mileage();
    void automaticRequestsLockTheCommands();
    void zone();
    void menu();
    void language();
    void nothingMoves();
    void narrowWindow();

private:
    template <class T = QLabel>
    T* child(const char* name) const
    {
        T* found = form_ ? form_->findChild<T*>(QLatin1String(name)) : nullptr;
        if (found == nullptr)
            qFatal("no %s", name);
        return found;
    }
    QString text(const char* name) const { return child(name)->text(); }
    void show(const Record& record)
    {
        const QByteArray message = QByteArray(3, '\0') + record.bytes();
        host_.send(Message::RecordByNumber, &message);
        form_ = ScriptedHost::window("VLK_Form_TMI_Zeta3");
    }
    void attachWithMask(quint32 low);
    // Object name of each value label, the text of its item, and where it is the only one, its caption.
    static QVector<QPair<QString, QString>> expected(const TmiPage_Zeta3& page);

    ScriptedHost host_;
    QTemporaryDir folder_;
    QString configuration_;
    QWidget* form_ = nullptr;
};

QTEST_MAIN(TabsTest)
#include "tst_tabs.moc"
