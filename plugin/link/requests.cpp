#include "link/requests.h"

#include "link/device.h"

vlk::Device* vlkDevice = nullptr;

namespace vlk::requests {

void detail::send(Message id, void* p1, void* p2)
{
    if (vlkDevice)
        vlkDevice->send(id, p1, p2);
}

void showHelp(const QString& page)
{
    if (vlkDevice)
        vlkDevice->showHelp(page);
}

QString eventText(int code)
{
    QString text;
    detail::send(Message::RequestEventText, asParameter(code), &text);
    return text;
}

QString eventTextIn(const char* language, int code)
{
    const TextSource source = vlkDevice ? vlkDevice->textsIn(language) : TextSource();
    const QByteArray key = "event " + QByteArray::number(code);
    const QString text = source ? source(key.constData()) : QString();
    return text == QLatin1String(key) ? QString() : text;
}

void liveKey(int owner)
{
    if (!vlkDevice)
        return;
    vlkDevice->setLiveOwner(owner);
    vlkDevice->send(Message::RequestLiveKey);
}

} // namespace vlk::requests
