#pragma once

#include <QObject>

#include <memory>

class QSocketNotifier;

// Turns SIGINT and SIGTERM into a Qt signal on the main thread, so the program can stop its
// capture and close its windows before it quits. One instance per process.
class TerminationSignalWatcher final : public QObject {
    Q_OBJECT

public:
    explicit TerminationSignalWatcher(QObject *parent = nullptr);
    ~TerminationSignalWatcher() override;

signals:
    void terminationRequested();

private:
    void readSignal();

    std::unique_ptr<QSocketNotifier> m_notifier;
};
