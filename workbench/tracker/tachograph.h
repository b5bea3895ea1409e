#pragma once

// The tachograph behind the tracker: it answers questions about its state, the drivers' cards and the
// vehicle, makes files, and gives the last one made. Every answer is six bytes of header, the kind, a status
// or code, and the fields of that kind.

#include "tracker/answer.h"
#include "tracker/vehicle.h"

namespace tracker {

class Tachograph
{
public:
    explicit Tachograph(std::function<Vehicle()> present);

    void addTo(Handlers& handlers);

private:
    Answers question(int number) const;
    Answers makeFile(const vlk::szQueryTaho* request);
    Answers saveFile(const QString* path) const;

    std::function<Vehicle()> present_;
    QByteArray file_; // the last one made
};

} // namespace tracker
