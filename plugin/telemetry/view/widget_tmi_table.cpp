#include "telemetry/view/widget_tmi_table.h"

#include "telemetry/view/damage_text.h"
#include "telemetry/view/records_model.h"
#include "telemetry/view/stored_file.h"
#include "typing/empty_note.h"
#include "typing/notice_bar.h"
#include "typing/table_look.h"
#include "windows/fit_to_screen.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QTableView>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int kWidth = 1024;
constexpr int kHeight = 680;
constexpr int kWidestColumn = 260;
constexpr int kHeadingLines = 2;
constexpr int kHeadPadding = 12; // above and below together
constexpr int kSamples = 8;      // rows spread over the file that a column is measured by

// Of a heading that is broken at its blanks into the lines that there are.
int headingWidth(const QString& heading, const QFontMetrics& metrics)
{
    int width = metrics.horizontalAdvance(heading) / kHeadingLines;
    for (const QString& word : heading.split(QLatin1Char(' ')))
        width = std::max(width, metrics.horizontalAdvance(word));
    const auto lines = [&] {
        return metrics.boundingRect(0, 0, width, 0, Qt::TextWordWrap, heading).height() /
               metrics.lineSpacing();
    };
    while (width < kWidestColumn && lines() > kHeadingLines)
        width += metrics.averageCharWidth();
    return width;
}

} // namespace

VLK_Widget_Tmi_Table::VLK_Widget_Tmi_Table(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint),
      damageNotice_(new vlk::NoticeBar(this, QStringLiteral("label_Damage"))),
      model_(new vlk::RecordsModel(this)), table_(new QTableView(this))
{
    table_->setObjectName(QStringLiteral("tableWidget"));
    table_->setFrameShape(QFrame::NoFrame);
    table_->setModel(model_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    vlk::dressTable(table_, vlk::TableUse::read);
    // Its numbers are the places in the file.
    table_->verticalHeader()->show();
    table_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    QHeaderView* const headings = table_->horizontalHeader();
    headings->setMinimumHeight(kHeadingLines * fontMetrics().lineSpacing() + kHeadPadding);
    headings->setSortIndicator(-1, Qt::AscendingOrder);
    table_->setSortingEnabled(true);
    table_->verticalHeader()->setHighlightSections(false);
    empty_ = new vlk::EmptyNote(table_);
    empty_->tell(tr("tmiw_002"));
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(damageNotice_, 0, 0);
    layout->addWidget(table_, 1, 0);
    resize(kWidth, kHeight);
    showTitle();
}

void VLK_Widget_Tmi_Table::open(const QString& path)
{
    fileName_ = QFileInfo(path).fileName();
    table_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    // A file may be large: two of them need not be in memory.
    model_->setContents({});
    vlk::TelemetryContents contents = vlk::readStoredFile(path);
    vlk::tellDamage(damageNotice_, contents, [this](int record) { showRecord(record); });
    model_->setContents(std::move(contents));
    table_->scrollToTop();
    fitColumns();
    showTitle();
    // Shown before it reads, the window has a frame by then.
    QTimer::singleShot(0, this, [this] { vlk::fitToScreen(this); });
}

// The heading of a row is its place in the file, however the rows are sorted.
void VLK_Widget_Tmi_Table::showRecord(int record)
{
    int row = 0;
    while (row < model_->rowCount() &&
           model_->headerData(row, Qt::Vertical, Qt::DisplayRole).toInt() != record)
        ++row;
    table_->selectRow(row);
    table_->scrollTo(model_->index(row, 0), QAbstractItemView::PositionAtCenter);
}

void VLK_Widget_Tmi_Table::retranslate()
{
    damageNotice_->retranslate();
    empty_->tell(tr("tmiw_002"));
    model_->retranslate();
    fitColumns();
    showTitle();
}

void VLK_Widget_Tmi_Table::showTitle()
{
    setWindowTitle(fileName_.isEmpty() ? tr("tmiw_031")
                                       : QStringLiteral("%1 - %2").arg(fileName_, tr("tmiw_031")));
}

// By the heading and some of the rows: the view would ask all of them that it can see, in every column.
void VLK_Widget_Tmi_Table::fitColumns()
{
    const QFontMetrics metrics(table_->font());
    const int margin = 4 * metrics.averageCharWidth();
    const int rows = model_->rowCount();
    for (int column = 0; column < model_->columnCount(); ++column) {
        int width =
            headingWidth(model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(), metrics);
        for (int sample = 0; sample < std::min(rows, kSamples); ++sample) {
            const int row = static_cast<int>(qint64{rows} * sample / kSamples);
            const QString text = model_->index(row, column).data().toString();
            width = std::max(width, metrics.horizontalAdvance(text));
        }
        // Packets are rare, and the rows that were looked at may hold none.
        const bool isWide = model_->isPacketData(column);
        table_->setColumnWidth(column, isWide ? kWidestColumn : std::min(width + margin, kWidestColumn));
    }
}
