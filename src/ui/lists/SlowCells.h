#pragma once

#include "outlets/TableView.h"

#include <QObject>
#include <memory>

namespace ui {

/// Fetches the cells of a table that take long, one after another, on a thread of its own.
class SlowCells : public QObject {
    Q_OBJECT

public:
    struct Cell {
        QString column;
        int row = 0;
    };

    /// Gives a cell's value; called on the other thread.
    using Fetch = QVariant (*)(const outlets::TableDataSource &source, const QString &column, int row);

    explicit SlowCells(Fetch how, QObject *parent = nullptr);
    ~SlowCells() override; ///< waits for nothing; a cell that is being fetched is dropped when it comes

    /// What was asked for before and has not come yet never comes. The source must live until the threads of
    /// the program have ended (see waitForThreads()).
    void fetch(const outlets::TableDataSource &source, const QList<Cell> &cells);

Q_SIGNALS:
    void fetched(const QString &column, int row, const QVariant &value);

protected:
    void customEvent(QEvent *event) override;

private:
    struct Shared;
    std::shared_ptr<Shared> m_shared;
};

} // namespace ui
