#include "window/help_viewer.h"

#include "window/find_field.h"
#include "window/line_icon.h"
#include "window/scrolling.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QTextDocument>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdlib>

namespace workbench {

namespace {

// One that can be read on the palette's base: many dark themes leave the link colour of the light one in it.
QColor linkColour(const QPalette& palette)
{
    constexpr int readable = 96;
    QColor link = palette.color(QPalette::Link);
    const int ground = qGray(palette.color(QPalette::Base).rgb());
    if (std::abs(qGray(link.rgb()) - ground) >= readable)
        return link;
    return ground < 128 ? QColor(0x8a, 0xb8, 0xff) : QColor(0x00, 0x4a, 0xad);
}

} // namespace

HelpBrowser::HelpBrowser(HelpPages pages, QString language, QWidget* parent)
    : QTextBrowser(parent), pages_(std::move(pages)), language_(std::move(language))
{
    document()->setDocumentMargin(12);
    applyStyle();
}

void HelpBrowser::applyStyle()
{
    document()->setDefaultStyleSheet(QStringLiteral("h1 { font-size: x-large; margin-bottom: 8px; }"
                                                    "h2 { font-size: large; margin-top: 14px; }"
                                                    "td, th { padding: 3px 8px 3px 0px; }"
                                                    "a { color: %1; }")
                                         .arg(linkColour(palette()).name()));
}

void HelpBrowser::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    applyStyle();
    if (!source().isEmpty())
        reload();
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name)
{
    return type == QTextDocument::HtmlResource ? QVariant(pages_.html(language_, name.path())) : QVariant();
}

void HelpBrowser::setLanguage(const QString& language)
{
    language_ = language;
    reload();
}

bool HelpBrowser::findNext(const QString& words)
{
    if (find(words))
        return true;
    QStringList pages = pages_.names(language_);
    const auto here = std::ranges::find(pages, source().path());
    if (here != pages.end())
        std::rotate(pages.begin(), here + 1, pages.end());
    for (const QString& page : std::as_const(pages)) {
        QTextDocument other;
        other.setHtml(pages_.html(language_, page));
        if (other.find(words).isNull())
            continue;
        if (page != source().path())
            setSource(QUrl(page));
        moveCursor(QTextCursor::Start);
        return find(words);
    }
    return false;
}

HelpViewer::HelpViewer(const HelpPages& pages, const QString& language, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint),
      browser_(new HelpBrowser(pages, language, this)), words_(new QLineEdit(this)), result_(new QLabel(this))
{
    setObjectName(QStringLiteral("dialog_Help"));
    setModal(false);
    browser_->setObjectName(QStringLiteral("textBrowser_Help"));

    auto* bar = new QToolBar(this);
    const auto addAction = [&](const char* icon, const char* key) {
        return texts_.bind(bar->addAction(lineIcon(QLatin1String(icon)), QString()), key);
    };
    QAction* back = addAction("back", "wb_help_back");
    QAction* forward = addAction("forward", "wb_help_forward");
    QAction* contents = addAction("contents", "wb_help_contents");
    back->setShortcut(QKeySequence::Back);
    forward->setShortcut(QKeySequence::Forward);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, browser_, &QTextBrowser::forward);
    connect(contents, &QAction::triggered, this, [this] { showPage(HelpPages::indexPage()); });
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);

    addSearch(bar);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(bar);
    column->addWidget(browser_, 1);
    texts_.bind(this, "wb_help");
    resizeWithin(this, QSize(720, 560));
}

void HelpViewer::addSearch(QToolBar* bar)
{
    words_->setObjectName(QStringLiteral("lineEdit_HelpFind"));
    words_->setClearButtonEnabled(true);
    words_->setMaximumWidth(fontMetrics().averageCharWidth() * 30);
    result_->setObjectName(QStringLiteral("label_HelpFound"));
    result_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    result_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    texts_.bind([this] {
        const QString text = workbench::text("wb_help_find");
        words_->setPlaceholderText(text);
        words_->setAccessibleName(text);
        words_->setToolTip(QStringLiteral("%1 (%2)").arg(
            text, QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    });
    bar->addWidget(result_);
    bar->addWidget(words_);
    connect(words_, &QLineEdit::returnPressed, this, [this] { findNext(); });
    connect(words_, &QLineEdit::textChanged, result_, &QLabel::clear);
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, this, [this] { findNext(); });
    joinFindField(words_, browser_);
}

void HelpViewer::findNext()
{
    const QString words = words_->text().simplified();
    if (!words.isEmpty())
        result_->setText(browser_->findNext(words) ? QString() : text("wb_help_not_found"));
}

void HelpViewer::showPage(const QString& page)
{
    browser_->setSource(QUrl(page));
    browser_->setFocus();
    show();
    raise();
    activateWindow();
}

void HelpViewer::setLanguage(const QString& language)
{
    texts_.apply();
    browser_->setLanguage(language);
}

} // namespace workbench
