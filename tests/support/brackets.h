#pragma once

#include <QCoreApplication>
#include <QTranslator>

// While it exists, every text is its key in angle brackets.
class Brackets : public QTranslator
{
public:
    Brackets() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* key, const char*, int) const override
    {
        return QLatin1Char('<') + QLatin1String(key) + QLatin1Char('>');
    }
};
