#include "capture/KeyPress.h"

#include <chrono>

KeyPress KeyPress::make(const QString &keyName, qint64 keyCode, KeyCategory category)
{
    return KeyPress{QUuid::createUuid(), keyName, keyCode, category, now()};
}

double KeyPress::now()
{
    using namespace std::chrono;
    return duration<double>(system_clock::now().time_since_epoch()).count();
}
