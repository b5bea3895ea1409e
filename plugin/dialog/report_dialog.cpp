#include "dialog/report_dialog.h"

#include "base/file_name.h"
#include "dialog/configuration_review.h"
#include "dialog/file_names.h"
#include "dialog/report_sheet.h"
#include "link/device.h"
#include "review/report.h"
#include "review/setting_words.h"
#include "review/value_text.h"
#include "settings/quick_settings.h"
#include "typing/grid.h"
#include "typing/notice_bar.h"
#include "windows/fit_to_screen.h"
#include "windows/named_widget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QShowEvent>
#include <QTextBrowser>

namespace vlk {

namespace {

enum Contents { All, Edited, NotDefault };
constexpr const char* kContents[] = {"rev_207", "rev_208", "rev_209"};
constexpr int kSaved = 1;
constexpr int kTooLong = 2;
constexpr QSize kUsualSize(760, 560);

QPalette ofPaper(QPalette palette)
{
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

QByteArray asText(const QString& html, bool /*isOnePage*/)
{
    return html.toUtf8();
}

// What the fields on show did not take as it was typed, where advice does not name them already.
QStringList notTaken(const ConfigurationReview& review, review::Secrets secrets)
{
    QStringList advised;
    for (const review::Finding& finding : review.advice())
        advised << finding.paths;
    QStringList told;
    for (PageSettings* page : review.history().pages()) {
        const Values& values = page->values();
        if ((&values.table() == &kQuickSettings) != review.isQuick())
            continue;
        for (const auto& [row, news] : page->binder().news()) {
            if (advised.contains(values.row(row).filePath))
                continue;
            const bool isHidden = values.row(row).base->secret && secrets == review::Secrets::Masked;
            told << QStringLiteral("%1: %2").arg(review::placeText(review::wordsOf(values.layout(), row)),
                                                 isHidden ? QString::fromUtf8(kSecretDots) : news.first());
        }
    }
    return told;
}

} // namespace

QStringList aboutConfiguration(const ConfigurationReview& review, const QString& file, bool isOfTracker)
{
    const auto text = [](const char* key) { return QCoreApplication::translate("vlk", key); };
    QStringList lines;
    if (!file.isEmpty())
        lines << text("rev_223").arg(file);
    // Nobody knows which tracker a file is of.
    if (vlkDevice) {
        QStringList unit{vlkDevice->model(), vlkDevice->trackerId1(), vlkDevice->trackerId2()};
        unit.removeAll(QString());
        const bool isAttached = unit.size() > 1;
        lines
            << text(isOfTracker || !isAttached ? "rev_224" : "rev_225").arg(unit.join(QStringLiteral(", ")));
    }
    // A reader would take them for what the tracker has.
    const std::pair<const char*, int> counts[] = {
        {isOfTracker ? "rev_351" : "rev_352", review.edited()},
        {review.isQuick() ? "rev_370" : "rev_433", review.unedited()}};
    for (const auto& [key, count] : counts) {
        if (count > 0)
            lines << text(key).arg(QLocale().toString(count));
    }
    return lines;
}

ReportDialog::ReportDialog(const ConfigurationReview& review, std::function<QStringList()> about,
                           QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint), review_(review),
      about_(std::move(about)), bar_(new NoticeBar(this, QStringLiteral("label_ReportNotice"))),
      of_(new QLabel(this)), contents_(namedWidget<QComboBox>("comboBox_ReportContents", this)),
      onePage_(namedWidget<QCheckBox>("checkBox_OnePage", this)),
      secrets_(namedWidget<QCheckBox>("checkBox_ReportSecrets", this)),
      preview_(namedWidget<QTextBrowser>("textBrowser_Report", this)),
      print_(namedWidget<QPushButton>("pushButton_PrintReport", this)),
      pdf_(namedWidget<QPushButton>("pushButton_ReportPdf", this)),
      saveHtml_(namedWidget<QPushButton>("pushButton_ReportHtml", this)),
      close_(namedWidget<QPushButton>("pushButton_CloseReport", this))
{
    setObjectName(QStringLiteral("dialog_Report"));
    of_->setBuddy(contents_);
    for (const char* key : kContents)
        contents_->addItem(QLatin1String(key));
    preview_->setOpenLinks(false);
    preview_->setPalette(ofPaper(preview_->palette()));
    auto* choice = new QHBoxLayout;
    choice->setSpacing(vlk::grid::kColumn);
    for (QWidget* widget : QWidgetList{of_, contents_, onePage_, secrets_})
        choice->addWidget(widget);
    choice->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(vlk::grid::kColumn);
    buttons->addStretch();
    for (QPushButton* button : {print_, pdf_, saveHtml_, close_}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(vlk::grid::kAroundWindow);
    layout->setSpacing(vlk::grid::kRow);
    layout->addLayout(choice);
    // Below what is chosen, which stays where it is when the bar comes.
    layout->addWidget(bar_);
    layout->addWidget(preview_, 1);
    layout->addLayout(buttons);
    connect(contents_, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &ReportDialog::refresh);
    connect(onePage_, &QCheckBox::toggled, this, &ReportDialog::refresh);
    connect(secrets_, &QCheckBox::toggled, this, &ReportDialog::refresh);
    connect(print_, &QPushButton::clicked, this, &ReportDialog::print);
    connect(pdf_, &QPushButton::clicked, this,
            [this] { save("rev_214", QStringLiteral("pdf"), &reportPdf); });
    connect(saveHtml_, &QPushButton::clicked, this,
            [this] { save("rev_215", QStringLiteral("html"), &asText); });
    connect(close_, &QPushButton::clicked, this, &QDialog::close);
    resize(kUsualSize);
    keepOnScreen(this);
    retranslate();
}

void ReportDialog::retranslate()
{
    setWindowTitle(tr("rev_206"));
    of_->setText(tr("rev_210"));
    for (int i = 0; i < contents_->count(); ++i)
        contents_->setItemText(i, tr(kContents[i]));
    onePage_->setText(tr("rev_211"));
    onePage_->setToolTip(tr("rev_212"));
    secrets_->setText(tr("rev_213"));
    preview_->setAccessibleName(tr("rev_206"));
    print_->setText(tr("rev_216"));
    pdf_->setText(tr("rev_214"));
    saveHtml_->setText(tr("rev_215"));
    close_->setText(tr("wrd_054"));
    bar_->retranslate();
    if (isVisible())
        refresh();
}

void ReportDialog::showEvent(QShowEvent* event)
{
    if (!event->spontaneous()) {
        secrets_->setChecked(false);
        refresh();
    }
    QDialog::showEvent(event);
}

void ReportDialog::refresh()
{
    const Configuration configuration = review_.written();
    const review::Differences notDefault(review::FileState::ofDefaults(configuration),
                                         review::FileState::ofConfiguration(configuration));
    const review::Differences sinceOpened = review_.sinceOpened();
    const int contents = contents_->currentIndex();
    const review::ReportChoice choice{contents != All, onePage_->isChecked(),
                                      secrets_->isChecked() ? review::Secrets::Shown
                                                            : review::Secrets::Masked};
    review::Report report = reportOf(configuration, contents == Edited ? sinceOpened : notDefault,
                                     review_.advice(), about_(), choice);
    report.advice << notTaken(review_, choice.secrets);
    html_ = toHtml(configuration, report);
    preview_->setHtml(html_);
    const int pages = onePage_->isChecked() ? leastPages(html_) : 1;
    if (pages > 1)
        bar_->tell(kTooLong, [pages] {
            return Notice{Mark::Advice, QCoreApplication::translate("vlk", "rev_346").arg(pages), {}};
        });
    else
        bar_->end(kTooLong);
}

void ReportDialog::print()
{
    QPrinter printer;
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted)
        printReport(html_, onePage_->isChecked(), printer);
}

void ReportDialog::save(const char* kind, const QString& suffix,
                        QByteArray (*content)(const QString& html, bool isOnePage))
{
    const QString object = asFileName(review_.written().value(QStringLiteral("TRANS/OBJECT/name")).trimmed(),
                                      QStringLiteral("_"));
    const QString name = QStringLiteral("%1 %2").arg(tr("rev_217"), object).trimmed();
    const QString path =
        askPathToSave(this, {FileKind::Report, tr(kind), name,
                             suffix.toUpper() + QStringLiteral(" (*.%1)").arg(suffix), suffix});
    if (path.isEmpty())
        return;
    const QString failure = saveAsAsked(path, content(html_, onePage_->isChecked()), secrets_->isChecked());
    if (failure.isEmpty())
        bar_->tellNews(kSaved, [path] { return savedNotice(path); });
    else
        bar_->tell(kSaved, {Mark::Invalid, failure, {}});
}

} // namespace vlk
