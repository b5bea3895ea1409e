#pragma once

#include <QCoreApplication>
#include <QTranslator>

#include <functional>
#include <utility>

// While it exists, every text is what is made of its key; null leaves it to others.
class TextsAs : public QTranslator
{
public:
    explicit TextsAs(std::function<QString(const QString& key)> text) : text_(std::move(text))
    {
        QCoreApplication::installTranslator(this);
    }
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* key, const char*, int) const override
    {
        return text_(QString::fromLatin1(key));
    }

private:
    const std::function<QString(const QString&)> text_;
};

// While it exists, every text is its key in angle brackets.
struct Brackets : TextsAs
{
    Brackets() : TextsAs([](const QString& key) { return '<' + key + '>'; }) {}
};
