#pragma once

// Asks what is to be exported, in which form, and under which name.

#include "telemetry/files/export_form.h"

#include <QDialog>

class QButtonGroup;
class QCheckBox;
class QComboBox;

namespace vlk {

struct ExportChoice
{
    enum What { Shown, Selected, Whole };

    What what = Shown;
    ExportForm form = ExportForm::Csv;
    bool decimalComma = false;
    bool onlyShownColumns = true;
};

class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    // By ExportChoice::What; what has none cannot be chosen.
    using Counts = std::array<int, 3>;

    ExportDialog(const ExportChoice& choice, const Counts& counts, QWidget* parent);

    ExportChoice choice() const;
    // Empty where the user gives it up. `proposed`: without a suffix.
    static QString askPath(ExportForm form, const QString& proposed, QWidget* parent);

private:
    void enableOptions();

    QButtonGroup* what_;
    QComboBox* form_;
    QComboBox* sign_;
    QCheckBox* columns_;
};

} // namespace vlk
