#include "ui/pages/FirstSteps.h"

#include "runs/RunJournal.h"
#include "ui/lists/PathList.h"
#include "ui/look/Appearance.h"

#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

QString seenFile() { return QFileInfo(recordsFolder()).path() + u"/first-steps-seen"_s; }

} // namespace

bool FirstSteps::wasSeen() { return QFileInfo::exists(seenFile()); }

void FirstSteps::rememberSeen()
{
    QDir().mkpath(QFileInfo(seenFile()).path());
    QFile file(seenFile());
    // Where it can't be written the steps come once more, which costs nobody anything.
    static_cast<void>(file.open(QIODevice::WriteOnly));
}

FirstSteps::FirstSteps(QWidget *parent) : QFrame(parent)
{
    setFrameShape(StyledPanel);
    setAcceptDrops(true);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(16, 12, 16, 12);
    grid->setColumnStretch(1, 1);
    auto *title = new QLabel(tr("Your first backup, in three steps"), this);
    QFont font = title->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.2);
    title->setFont(font);
    grid->addWidget(title, 0, 0, 1, 4);
    m_rows = {makeRow(Folders, tr("What is to be kept safe?"),
                      tr("Choose the folders that you can't do without, or drop them here."),
                      tr("Choose folders…")),
              makeRow(Place, tr("Where to?"),
                      tr("Choose a folder on another disk: one that breaks or is stolen takes all with it."),
                      tr("Choose a place…")),
              makeRow(Password, tr("What locks it?"),
                      tr("Think of a password. Without it nobody can open the backup, you neither: write it "
                         "down in a safe place."),
                      tr("Set a password…"))};
    grid->setRowStretch(count + 1, 1);
    goOn();
}

FirstSteps::Row FirstSteps::makeRow(int step, const QString &title, const QString &text, const QString &go)
{
    Row row{new QLabel(this), new QLabel(title, this), new QLabel(text, this), new QPushButton(go, this),
            new QToolButton(this)};
    row.text->setWordWrap(true);
    row.go->setAccessibleDescription(text);
    row.go->setObjectName(u"firstStep%1"_s.arg(step + 1));
    row.skip->setText(tr("Skip"));
    row.skip->setAccessibleName(tr("Skip: %1").arg(title));
    row.skip->setFocusPolicy(Qt::StrongFocus);
    row.skip->setAutoRaise(true);
    row.skip->setObjectName(u"skipStep%1"_s.arg(step + 1));
    auto *words = new QVBoxLayout;
    words->setSpacing(0);
    words->addWidget(row.title);
    words->addWidget(row.text);
    auto *grid = static_cast<QGridLayout *>(layout());
    grid->addWidget(row.sign, step + 1, 0, Qt::AlignTop);
    grid->addLayout(words, step + 1, 1);
    grid->addWidget(row.go, step + 1, 2);
    grid->addWidget(row.skip, step + 1, 3);
    connect(row.go, &QPushButton::clicked, this, [this, step] { Q_EMIT wanted(Step(step)); });
    connect(row.skip, &QToolButton::clicked, this, [this, step] {
        m_rows[size_t(step)].isSkipped = true;
        goOn();
    });
    return row;
}

void FirstSteps::setDone(const std::array<bool, count> &isDone)
{
    for (size_t step = 0; step < count; ++step)
        m_rows[step].isDone = isDone[step];
    goOn();
}

void FirstSteps::goOn()
{
    const auto next =
        std::find_if(m_rows.begin(), m_rows.end(), [](const Row &row) { return !row.isOver(); });
    show(int(next - m_rows.begin()));
    if (next == m_rows.end()) Q_EMIT finished();
}

// The step that is due stands out; what comes later is there to be seen, and may be done first.
void FirstSteps::show(int current)
{
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    for (int step = 0; step < count; ++step) {
        const Row &row = m_rows[size_t(step)];
        QFont font = this->font();
        font.setBold(step == current);
        row.title->setFont(font);
        row.sign->setPixmap(stateSign(row.isDone ? Sign::Good : Sign::Pending).pixmap(size));
        row.text->setVisible(!row.isOver());
        row.go->setVisible(!row.isOver());
        row.skip->setVisible(step == current);
    }
}

void FirstSteps::dragEnterEvent(QDragEnterEvent *event) { PathListView::acceptPaths(*event); }

void FirstSteps::dropEvent(QDropEvent *event)
{
    if (PathListView::acceptPaths(*event)) Q_EMIT pathsDropped(PathListView::localPaths(*event->mimeData()));
}

} // namespace ui
