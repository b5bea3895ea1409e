#include "peripherals/form_config_rs_param_mdbs.h"

#include "settings/element_types.h"
#include "windows/column_head.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QSpinBox>

#include <algorithm>
#include <utility>

namespace {

constexpr int kRows = 32;
constexpr int kEventRows = 10;

QString keyOf(const vlk::ModbusRow& row)
{
    return QLatin1String(vlk::kModbusCode) + QString::number(row.number());
}

// "MB3,  7,  1f, 2 bytes, unsigned"
QString composite(const vlk::UserParam& offer)
{
    return offer.name + QLatin1String(", ") + offer.third;
}

// Names begin with their row's number, of one digit or two.
bool earlier(const QString& name, const QString& other)
{
    const auto row = [](const QString& text) { return text.section(QLatin1Char(','), 0, 0).mid(2).toInt(); };
    return std::pair(row(name), name) < std::pair(row(other), other);
}

// A heading that is little wider than its longest word, as the columns are narrow.
QString brokenIntoLines(const QString& caption)
{
    const QStringList words = caption.simplified().split(QLatin1Char(' '));
    int width = 0;
    for (const QString& word : words)
        width = std::max(width, static_cast<int>(word.size()));
    QString text = words.first();
    int line = text.size();
    for (const QString& word : words.mid(1)) {
        const bool fits = line + 1 + word.size() <= width;
        text += QLatin1Char(fits ? ' ' : '\n') + word;
        line = static_cast<int>(fits ? line + 1 + word.size() : word.size());
    }
    return text;
}

} // namespace

using This = VLK_Form_Config_RS_Param_Mdbs;

VLK_Form_Config_RS_Param_Mdbs::VLK_Form_Config_RS_Param_Mdbs(QWidget* parent)
    : VLK_Form_Config_RS_Param(parent), choice_(new QGroupBox), byType_(new QRadioButton),
      byNumber_(new QRadioButton), values_(makeTable("groupBox_Modbus", vlk::ModbusRow::captions())),
      events_(makeTable("groupBox_Interface_Events", vlk::ModbusEventRow::captions()))
{
    choice_->setObjectName(QStringLiteral("groupBox_Calc"));
    byType_->setObjectName(QStringLiteral("radioButton_Calc_NumType"));
    byNumber_->setObjectName(QStringLiteral("radioButton_Calc_Num"));
    auto* ways = new QHBoxLayout(choice_);
    ways->addWidget(byType_);
    ways->addWidget(byNumber_);
    ways->addStretch();
    byType_->setChecked(true);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* group : {choice_, values_.group, events_.group})
        layout->addWidget(group);
    makeRows();
    makeEventRows();
    connect(byType_, &QRadioButton::toggled, this, &This::chooseWay);
    makeLists();
}

VLK_Form_Config_RS_Param_Mdbs::Table
VLK_Form_Config_RS_Param_Mdbs::makeTable(const char* name, const QList<const char*>& captions)
{
    Table table{new QGroupBox, new QGridLayout, captions, {}};
    table.group->setObjectName(QLatin1String(name));
    auto* layout = new QHBoxLayout(table.group);
    layout->addLayout(table.grid);
    layout->addStretch();
    for (int column = 0; column < captions.size(); ++column) {
        table.labels << vlk::columnHead();
        table.grid->addWidget(table.labels.last(), 0, column);
    }
    return table;
}

void VLK_Form_Config_RS_Param_Mdbs::makeRows()
{
    lines_.reserve(kRows);
    for (int number = 1; number <= kRows; ++number) {
        const vlk::ModbusRow& row = lines_.emplace_back(Line{{number, values_.grid, number}, {}}).row;
        const auto take = [this, number](auto* input, auto signal, void (This::*edit)(Line&)) {
            connect(input, signal, this, [this, number, edit] { (this->*edit)(line(number)); });
        };
        constexpr auto valueChanged = qOverload<int>(&QSpinBox::valueChanged);
        take(row.use, &QCheckBox::stateChanged, &This::takeUse);
        take(row.address, valueChanged, &This::takeAddress);
        take(row.registerNumber, valueChanged, &This::takeRegisterNumber);
        take(row.registerAddress, valueChanged, &This::takeRegisterAddress);
        take(row.registerType, &QComboBox::currentTextChanged, &This::takeRegisterType);
        take(row.dataType, &QComboBox::currentTextChanged, &This::takeDataType);
    }
}

void VLK_Form_Config_RS_Param_Mdbs::makeEventRows()
{
    eventRows_.reserve(kEventRows);
    for (int number = 1; number <= kEventRows; ++number)
        eventRows_.emplace_back(number, events_.grid, number);
    for (vlk::ModbusEventRow& row : eventRows_) {
        connect(row.use, &QCheckBox::stateChanged, this,
                [this, &row] { row.inUse() ? row.start(eventNames_, conditions_) : row.clear(); });
        connect(row.condition, &QComboBox::currentTextChanged, this, [&row] { row.applyCondition(); });
    }
}

void VLK_Form_Config_RS_Param_Mdbs::retranslate(const Table& table, const char* title)
{
    table.group->setTitle(tr(title));
    for (int i = 0; i < table.labels.size(); ++i)
        table.labels[i]->setText(brokenIntoLines(tr(table.captions[i])));
}

// A row that is switched on fills its lists from these.
void VLK_Form_Config_RS_Param_Mdbs::makeLists()
{
    lists_ = {};
    for (const vlk::ElementType& type : vlk::kElementTypes)
        lists_.dataTypes << vlk::textOf(type);
    lists_.byteOrders = QStringList{
        QStringLiteral("[ABCD] %1").arg(tr("cfgt6_101")), QStringLiteral("[CDAB] %1").arg(tr("cfgt6_102")),
        QStringLiteral("[BADC] %1").arg(tr("cfgt6_103")), QStringLiteral("[DCBA] %1").arg(tr("cfgt6_104"))};
    conditions_ = QStringList{tr("cfgt6_105"), tr("cfgt6_106"), tr("cfgt6_107")};
}

void VLK_Form_Config_RS_Param_Mdbs::retranslate()
{
    choice_->setTitle(tr("cfgt6_108"));
    byType_->setText(tr("cfgt6_109"));
    byNumber_->setText(tr("cfgt6_110"));
    retranslate(values_, "cfgt6_111");
    retranslate(events_, "cfgt6_121");

    makeLists();
    const QFontMetrics metrics = lines_.front().row.dataType->fontMetrics();
    lists_.measure(metrics);
    const vlk::TextWidths conditionWidths = vlk::ModbusEventRow::widthsOf(conditions_, metrics);
    {
        const QScopedValueRollback arranging(arranging_, true);
        for (Line& line : lines_)
            line.row.retranslate(lists_);
        for (vlk::ModbusEventRow& row : eventRows_)
            row.retranslate(conditions_, conditionWidths);
    }
    for (Line& line : lines_)
        tellOf(line);
}

void VLK_Form_Config_RS_Param_Mdbs::setDefaults()
{
    for (Line& line : lines_)
        line.row.use->setChecked(false);
    for (vlk::ModbusEventRow& row : eventRows_)
        row.use->setChecked(false);
    byType_->setChecked(true);
    lastAddress_ = 1;
}

bool VLK_Form_Config_RS_Param_Mdbs::byNumber() const
{
    return !byType_->isChecked();
}

void VLK_Form_Config_RS_Param_Mdbs::takeUse(Line& changed)
{
    const bool on = changed.row.inUse();
    if (!on)
        tellOf(changed);
    {
        const QScopedValueRollback arranging(arranging_, true);
        if (on)
            changed.row.start(lastAddress_, byNumber(), lists_);
        else
            changed.row.clear();
    }
    tellOf(changed);
}

void VLK_Form_Config_RS_Param_Mdbs::takeAddress(Line& changed)
{
    if (arranging_ || !changed.row.inUse())
        return;
    lastAddress_ = changed.row.address->value();
    tellOf(changed);
}

void VLK_Form_Config_RS_Param_Mdbs::takeRegisterAddress(Line& changed)
{
    if (arranging_)
        return;
    tellOf(changed);
    takeRegisterType(changed);
}

void VLK_Form_Config_RS_Param_Mdbs::takeRegisterType(Line& changed)
{
    if (arranging_)
        return;
    const QScopedValueRollback arranging(arranging_, true);
    changed.row.showNumber();
}

void VLK_Form_Config_RS_Param_Mdbs::takeRegisterNumber(Line& changed)
{
    if (arranging_ || !byNumber())
        return;
    {
        const QScopedValueRollback arranging(arranging_, true);
        changed.row.takeNumber();
        changed.row.setByNumber(true);
    }
    tellOf(changed);
}

void VLK_Form_Config_RS_Param_Mdbs::takeDataType(Line& changed)
{
    if (!arranging_)
        tellOf(changed);
}

void VLK_Form_Config_RS_Param_Mdbs::chooseWay()
{
    for (Line& line : lines_)
        line.row.setByNumber(byNumber());
}

// Tells the data set and the event rows what became of a row since they were last told.
void VLK_Form_Config_RS_Param_Mdbs::tellOf(Line& line)
{
    const vlk::UserParam now = line.row.offer();
    const vlk::UserParam before = std::exchange(line.offered, now);
    if (now == before)
        return;
    const bool renamed = now.name != before.name;
    line.row.dataType->setRememberedText(now.third);

    tellRows();
    if (renamed && eventNames_.removeOne(before.name))
        offerEventNames();
    if (renamed && !now.name.isEmpty() && !eventNames_.contains(now.name)) {
        eventNames_.insert(std::ranges::lower_bound(eventNames_, now.name, earlier), now.name);
        offerEventNames();
    }
}

// An event row whose value is no longer offered is switched off.
void VLK_Form_Config_RS_Param_Mdbs::offerEventNames()
{
    for (vlk::ModbusEventRow& row : eventRows_) {
        if (row.inUse() && !row.offerNames(eventNames_))
            row.use->setChecked(false);
    }
}

void VLK_Form_Config_RS_Param_Mdbs::tellRows()
{
    QList<vlk::UserParam> offers;
    for (const Line& line : lines_) {
        if (onOffer_ && !line.offered.name.isEmpty())
            offers << line.offered;
    }
    tellOffers(offers);
}

void VLK_Form_Config_RS_Param_Mdbs::offerAll()
{
    onOffer_ = true;
    tellRows();
}

void VLK_Form_Config_RS_Param_Mdbs::withdrawAll()
{
    onOffer_ = false;
    tellRows();
}

QString VLK_Form_Config_RS_Param_Mdbs::keyOfName(const QString& text) const
{
    const auto found = std::ranges::find_if(lines_, [&](const Line& line) {
        return !line.offered.name.isEmpty() && composite(line.offered) == text;
    });
    return found == lines_.end() ? QString() : keyOf(found->row);
}

QString VLK_Form_Config_RS_Param_Mdbs::nameOfKey(const QString& key) const
{
    const auto found = std::ranges::find_if(
        lines_, [&](const Line& line) { return !line.offered.name.isEmpty() && keyOf(line.row) == key; });
    return found == lines_.end() ? QString() : composite(found->offered);
}
