#pragma once

#include <QObject>

class QSocketNotifier;

/// Turns SIGINT, SIGTERM and SIGHUP into a signal of Qt's on the main thread, where anything may be done. One
/// at a time; before it is made and after it is gone the signals do what they always do.
class TerminationSignals : public QObject {
    Q_OBJECT
public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

Q_SIGNALS:
    void received(int signal);

private:
    void readSignal();

    QSocketNotifier *m_notifier = nullptr;
};
