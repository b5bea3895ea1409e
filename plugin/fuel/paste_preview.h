#pragma once

// What a paste would add to a calibration table, what becomes of the points that are there, and which lines
// it leaves out and why, for the user to agree to.

#include "fuel/table/fuel_text.h"

#include <QDialog>

class QCheckBox;

class PastePreview : public QDialog
{
    Q_OBJECT

public:
    PastePreview(const vlk::JoiningRows& joining, const std::vector<vlk::LeftOutLine>& leftOut,
                 const vlk::FuelCaptions& captions, QWidget* parent);

    // Of the lines that are left out, the first ones by name.
    static QString reasons(const std::vector<vlk::LeftOutLine>& leftOut, const vlk::FuelCaptions& captions);

    // Whether the rows come in the place of those at the same volume.
    bool isToReplace() const;

private:
    QCheckBox* replace_ = nullptr;
};
