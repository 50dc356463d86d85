// Pushes 1,000,000 captured events (shortcuts, letters, F-keys, repeats, modifier changes)
// through the key event engine end to end: naming and filtering on the capture thread, the key
// list on the main thread. Prints events per second and resident memory before and after.
#include "FakeCaptureBackend.h"

#include "capture/KeyCode.h"
#include "capture/KeyManager.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <array>
#include <cstdio>
#include <thread>

namespace {

constexpr int eventCount = 1'000'000;
constexpr int chunk = 10'000;

long residentKilobytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toLong();
    return -1;
}

// Feeds `count` events in a fixed mix, never more than a chunk ahead of the engine.
void produce(FakeCaptureBackend &backend, FakeCaptureBackend::Control &control, int count)
{
    using Type = CaptureEvent::Type;
    static constexpr std::array letters{KeyCode::A, KeyCode::S, KeyCode::D, KeyCode::F,
                                        KeyCode::J, KeyCode::K, KeyCode::L, KeyCode::E,
                                        KeyCode::R, KeyCode::U, KeyCode::I, KeyCode::O};
    static constexpr std::array functionKeys{KeyCode::F1, KeyCode::F5, KeyCode::F12};
    const int start = control.delivered;
    for (int i = 0; i < count; ++i) {
        const int letter = letters[size_t(i / 10) % letters.size()];
        switch (i % 10) {
        case 0: // Ctrl+Shift+letter: two modifier changes and the key
            backend.inject(Type::flagsChanged, KeyCode::Control, ModifierFlag::Control);
            break;
        case 1:
            backend.inject(Type::flagsChanged, KeyCode::Shift,
                           ModifierFlag::Control | ModifierFlag::Shift);
            break;
        case 2:
            backend.inject(Type::keyDown, letter, ModifierFlag::Control | ModifierFlag::Shift);
            break;
        case 3:
            backend.inject(Type::flagsChanged, KeyCode::Shift, 0);
            break;
        case 4: // typing, shown with every key
        case 5:
            backend.inject(Type::keyDown, letters[size_t(i) % letters.size()], 0);
            break;
        case 6: // a held key repeating
        case 7:
        case 8:
            backend.inject(Type::keyDown, letter, 0);
            break;
        case 9:
            backend.inject(Type::keyDown, functionKeys[size_t(i / 10) % functionKeys.size()], 0);
            break;
        }
        if (i % chunk == chunk - 1)
            while (control.delivered - start < i + 1 - chunk)
                std::this_thread::yield();
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    SettingsStore store(dir.filePath(QStringLiteral("Vantrel.conf")));
    store.setValue(AppSettings::showAllKeys, true);
    store.setValue(AppSettings::showMouseClicks, true);
    KeyboardLayoutTranslator translator(XkbKeyboardLayoutSource::fromNames(QStringLiteral("us")));
    FakeCaptureBackend::Control control;
    auto backendOwner = std::make_unique<FakeCaptureBackend>(control);
    FakeCaptureBackend &backend = *backendOwner;
    KeyManager manager(store, std::move(backendOwner), translator);
    while (!manager.isListening())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);

    // A click marks the end: once it is on show, everything before it has been applied.
    const auto runUntilApplied = [&](int count) {
        QEventLoop loop;
        const auto connection =
            QObject::connect(&manager, &KeyManager::currentKeysChanged, &loop, [&] {
                const QList<KeyPress> keys = manager.currentKeys();
                if (!keys.isEmpty() && keys.last().keyCode == KeyPress::leftClickCode)
                    loop.quit();
            });
        std::thread producer([&] {
            produce(backend, control, count);
            backend.inject(CaptureEvent::Type::leftMouseDown);
        });
        loop.exec();
        producer.join();
        QObject::disconnect(connection);
    };

    runUntilApplied(50'000); // warm-up: caches, allocator pools, the list at its cap
    QCoreApplication::processEvents();
    const long before = residentKilobytes();

    QElapsedTimer timer;
    timer.start();
    runUntilApplied(eventCount);
    const double seconds = double(timer.nsecsElapsed()) / 1e9;
    QCoreApplication::processEvents();
    const long after = residentKilobytes();

    std::printf("events:            %d\n", eventCount);
    std::printf("elapsed:           %.3f s\n", seconds);
    std::printf("events per second: %.0f (target >= 200000)\n", eventCount / seconds);
    std::printf("VmRSS before:      %ld kB\n", before);
    std::printf("VmRSS after:       %ld kB (difference %+ld kB, target within 1024 kB)\n", after,
                after - before);
    return 0;
}
