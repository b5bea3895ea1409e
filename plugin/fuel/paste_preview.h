#pragma once

// What a paste would add to a calibration table, and how many lines it leaves out, for the user to agree to.

#include "fuel/table/fuel_text.h"

#include <QDialog>

class PastePreview : public QDialog
{
    Q_OBJECT

public:
    PastePreview(const vlk::PastedRows& pasted, const vlk::FuelCaptions& captions, QWidget* parent);
};
