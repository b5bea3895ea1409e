#include "window/folders_dialog.h"

#include "typing/file_error.h"
#include "typing/grid.h"
#include "typing/notice_bar.h"
#include "window/data_folder.h"
#include "window/languages.h"
#include "window/line_icon.h"
#include "window/scrolling.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace workbench {

FoldersDialog::FoldersDialog(const QString& telemetry, const QString& configurations, QWidget* parent)
    : QDialog(parent), bar_(new vlk::NoticeBar(this))
{
    setWindowTitle(text("wb_folders"));
    auto* form = new QFormLayout;
    telemetry_ = addFolder(form, "lineEdit_FolderTelemetry", "wb_folder_telemetry", telemetry);
    configurations_ =
        addFolder(form, "lineEdit_FolderConfigurations", "wb_folder_configurations", configurations);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(text("wb_folders_use"), QDialogButtonBox::AcceptRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(vlk::grid::kAroundPage);
    bar_->keepPlace();
    column->addWidget(bar_);
    column->addLayout(form);
    column->addWidget(buttons);
    resizeWithin(this, QSize(640, sizeHint().height()));
}

void FoldersDialog::accept()
{
    for (QLineEdit* folder : {telemetry_, configurations_}) {
        const QString path = folder->text().trimmed();
        const QString reason = path.isEmpty() ? QString() : whyNotWritable(path);
        if (reason.isEmpty())
            continue;
        bar_->tell(
            0, {vlk::Mark::Invalid,
                text("wb_folder_unusable").arg(QDir::toNativeSeparators(path), vlk::fileErrorText(reason)),
                {}});
        folder->setFocus();
        folder->selectAll();
        return;
    }
    QDialog::accept();
}

QLineEdit* FoldersDialog::addFolder(QFormLayout* form, const char* name, const char* key,
                                    const QString& folder)
{
    auto* edit = new QLineEdit(folder, this);
    edit->setObjectName(QLatin1String(name));
    auto* choose = new QToolButton(this);
    choose->setIcon(lineIcon(QStringLiteral("open")));
    choose->setToolTip(text("wb_folder_choose"));
    choose->setAccessibleName(text("wb_folder_choose"));
    connect(choose, &QToolButton::clicked, this, [this, edit, key] {
        const QString chosen = QFileDialog::getExistingDirectory(this, text(key), edit->text());
        if (!chosen.isEmpty())
            edit->setText(chosen + QLatin1Char('/'));
    });
    auto* row = new QHBoxLayout;
    row->setSpacing(vlk::grid::kColumn);
    row->addWidget(edit, 1);
    row->addWidget(choose);
    auto* label = new QLabel(text(key), this);
    label->setBuddy(edit);
    form->addRow(label, row);
    return edit;
}

QString FoldersDialog::telemetry() const
{
    return telemetry_->text().trimmed();
}

QString FoldersDialog::configurations() const
{
    return configurations_->text().trimmed();
}

} // namespace workbench
