#pragma once

class Secrecy;

// One source of secrecy on a platform: the session's lock state, a screen locker, the focused
// field. Made and started by the application on the main thread; it reports to `secrecy`
// (whether it is available, then every change) on the main thread until it is destroyed.
class SecrecyWatcher {
public:
    virtual ~SecrecyWatcher() = default;

    // `secrecy` outlives the watcher.
    virtual void start(Secrecy &secrecy) = 0;
};
