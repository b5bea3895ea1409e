#pragma once

// What the tracker gives back for a request, and how requests find whom they are for.

#include "plugin/host/host_interface.h"

#include <functional>
#include <map>
#include <vector>

namespace tracker {

struct Answer
{
    enum class Form {
        Empty, // null
        Bytes, // the address of the QByteArray
        Record // the address of its first byte
    };

    Form form = Form::Empty;
    QByteArray data;
    QByteArray second;      // a record for the other parameter, null when it is empty
    vlk::Message message{}; // 0: the one that answers the request
    int afterMs = 0;        // beyond the tracker's usual time
    bool ofSearch = false;  // goes when the Bluetooth search is stopped
    quint32 ticket = 0;     // of the request

    static Answer bytes(const QByteArray& data) { return {Form::Bytes, data, {}}; }

    template <typename T>
    static Answer record(const T& value)
    {
        return {Form::Record, QByteArray(reinterpret_cast<const char*>(&value), sizeof value), {}};
    }
};

using Answers = std::vector<Answer>;

// Takes the request's first parameter, which may be null or, for a plain value, the value itself.
using Handler = std::function<Answers(void* p1)>;
using Handlers = std::map<vlk::Message, Handler>;

inline int plainValue(void* p1)
{
    return static_cast<int>(vlk::asValue(p1));
}

} // namespace tracker
