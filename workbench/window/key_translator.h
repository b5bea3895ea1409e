#pragma once

// Texts by key: the plug-in asks tr("cfgt1_002") from many classes, and one key has one text whatever class
// asks. Loads the id-based .qm files of translations/; a key without a text stays the key.

#include <QTranslator>

namespace workbench {

class KeyTranslator : public QTranslator
{
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    QString translate(const char* context, const char* key, const char* disambiguation = nullptr,
                      int n = -1) const override;
};

} // namespace workbench
