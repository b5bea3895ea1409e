#pragma once

// One entry of a catalogue of user parameters: the parameters of the CAN bus and those of a passenger
// counter. Names are in the language in which the catalogue was made.

#include <QList>
#include <QObject>

// A named bit of an entry that is stored as bits.
class VLK_UserParam_CAN_Bit : public QObject
{
    Q_OBJECT

public:
    VLK_UserParam_CAN_Bit(int id, const QString& name, QObject* parent)
        : QObject(parent), id_(id), name_(name)
    {
    }

    int id() const { return id_; }
    QString name() const { return name_; }

private:
    const int id_;
    const QString name_;
};

class VLK_UserParam_CAN : public QObject
{
    Q_OBJECT

public:
    // `number` is the place in the catalogue, counted from 1; `type` an element type ("2u") or empty.
    VLK_UserParam_CAN(int number, int id, const QString& name, const QString& type, QObject* parent)
        : QObject(parent), number_(number), id_(id), name_(name), type_(type)
    {
    }

    int number() const { return number_; }
    int id() const { return id_; }
    QString name() const { return name_; }
    QString type() const { return type_; }
    const QList<VLK_UserParam_CAN_Bit*>& bits() const { return bits_; }
    void addBit(int id, const QString& name) { bits_ << new VLK_UserParam_CAN_Bit(id, name, this); }

private:
    const int number_;
    const int id_;
    const QString name_;
    const QString type_;
    QList<VLK_UserParam_CAN_Bit*> bits_;
};
