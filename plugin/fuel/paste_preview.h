#pragma once

// What a paste would add to a calibration table, what becomes of the points that are there, and which lines
// it leaves out and why, for the user to agree to.

#include "fuel/table/fuel_text.h"

#include <QDialog>

class QCheckBox;
class QVBoxLayout;

class PastePreview : public QDialog
{
    Q_OBJECT

public:
    // `pasted`: from which the joining rows are.
    PastePreview(const vlk::JoiningRows& joining, const vlk::PastedRows& pasted,
                 const vlk::FuelCaptions& captions, QWidget* parent);

    // What it ends with where the columns are to be read the other way round, beside those of QDialog.
    static constexpr int kSwapped = QDialog::Accepted + 1;

    // Why lines are left out, the first ones by name.
    static QString reasons(const std::vector<vlk::LeftOutLine>& leftOut, const vlk::FuelCaptions& captions);

    // How many they are, and that.
    static QString leftOutText(const std::vector<vlk::LeftOutLine>& leftOut,
                               const vlk::FuelCaptions& captions);

    // The first volumes of points that fall back, as a sentence; empty where none does.
    static QString fallingText(const vlk::FuelPoints& points);

    // Whether the rows come in the place of those at the same volume.
    bool isToReplace() const;

private:
    // Without headings nobody but the user knows the order of the columns.
    void addOrder(QVBoxLayout* column, vlk::FuelOrder order, const vlk::FuelCaptions& captions);

    QCheckBox* replace_ = nullptr;
};
