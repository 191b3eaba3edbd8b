#include "adapters/qt/program_box.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "adapters/qt/box_look.h"
#include "adapters/qt/convert.h"

namespace qt_adapter {

namespace {

using platform::ProgramAnswer;

constexpr int kPollMilliseconds = 50;
constexpr int kTextWidth = 60;  // in letters
constexpr int kMostLines = 8;   // seen without scrolling

/// Line ends and marks of direction can make a command look like another one.
QString Plain(TextView text) {
    QString plain = ToQt(text);
    for (QChar& letter : plain) {
        const QChar::Category category = letter.category();
        if (category == QChar::Other_Control || category == QChar::Other_Format ||
            category == QChar::Separator_Line || category == QChar::Separator_Paragraph) {
            letter = QChar::ReplacementCharacter;
        }
    }
    return plain;
}

QString WhatIsStarted(const platform::ProgramQuestion& question) {
    QString text = QStringLiteral("プログラム: ") + Plain(question.program);
    if (question.arguments.empty()) {
        text += QStringLiteral("\n引数: なし");
    }
    for (size_t i = 0; i < question.arguments.size(); ++i) {
        text += QStringLiteral("\n引数 %1: ").arg(i + 1) + Plain(question.arguments[i]);
    }
    return text;
}

/// Wraps and scrolls, so that the buttons stay on the screen whatever a document says.
QPlainTextEdit* MakeText(const QString& text, QWidget* parent) {
    auto* edit = new QPlainTextEdit(text, parent);
    edit->setReadOnly(true);
    edit->setFocusPolicy(Qt::ClickFocus);
    edit->setWordWrapMode(QTextOption::WrapAnywhere);
    const QFontMetrics metrics = edit->fontMetrics();
    const int width = metrics.averageCharWidth() * kTextWidth;
    int lines = 0;
    for (const QString& line : text.split('\n')) {
        lines += metrics.horizontalAdvance(line) / width + 1;
    }
    edit->setMinimumWidth(width);
    edit->setFixedHeight(metrics.lineSpacing() * (std::min(lines, kMostLines) + 1));
    return edit;
}

bool IsKeyOrPress(QEvent::Type type) {
    switch (type) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::TouchBegin:
        case QEvent::TouchEnd:
        case QEvent::TabletPress:
        case QEvent::TabletRelease:
            return true;
        default:
            return false;
    }
}

}  // namespace

ProgramBox::ProgramBox(const platform::ProgramQuestion& question, QWidget* parent, Clock clock)
    : QDialog(parent), clock_(std::move(clock)) {
    ownClock_.start();
    if (!clock_) {
        clock_ = [this] { return static_cast<double>(ownClock_.nsecsElapsed()) / 1e6; };
    }
    GiveBoxFrame(*this);
    setWindowTitle(QStringLiteral("パラピコ"));
    setCursor(Qt::ArrowCursor);

    auto* icon = new QLabel(this);
    const int side = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    icon->setPixmap(SignOf(QMessageBox::Warning, side, devicePixelRatioF()));
    auto* words = new QLabel(
        QStringLiteral("このスライドショーはプログラムを起動しようとしています。"), this);
    auto* head = new QHBoxLayout;
    head->addWidget(icon);
    head->addWidget(words, 1);

    auto* grid = new QGridLayout;
    const auto add = [&](int row, int column, const QString& caption, ProgramAnswer answer) {
        QPushButton* button = AddButton(caption, answer);
        grid->addWidget(button, row, column);
        return button;
    };
    add(0, 0, QStringLiteral("はい、今回だけ(&Y)"), ProgramAnswer::Yes);
    no_ = add(0, 1, QStringLiteral("いいえ(&N)"), ProgramAnswer::No);
    add(1, 0, QStringLiteral("このショーの間は許可(&S)"), ProgramAnswer::ForShow);
    add(1, 1, QStringLiteral("この文書では常に許可(&A)"), ProgramAnswer::Always);
    if (question.manyAsked) {
        add(2, 0, QStringLiteral("このショーではもう尋ねない(&Q)"), ProgramAnswer::NoMore);
        add(2, 1, QStringLiteral("ショーを終わる(&E)"), ProgramAnswer::EndShow);
    }
    no_->setDefault(true);

    auto* column = new QVBoxLayout(this);
    column->addLayout(head);
    column->addWidget(MakeText(WhatIsStarted(question), this));
    column->addLayout(grid);

    connect(&timer_, &QTimer::timeout, this, [this] { LooksAlive(); });
    qApp->installEventFilter(this);
    BeginDeath();
}

ProgramBox::~ProgramBox() {
    qApp->removeEventFilter(this);
}

QPushButton* ProgramBox::AddButton(const QString& caption, ProgramAnswer answer) {
    auto* button = new QPushButton(caption, this);
    // Enter stays with the default button wherever the focus is.
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, answer] {
        answer_ = answer;
        accept();
    });
    buttons_.push_back(button);
    return button;
}

void ProgramBox::BeginDeath() {
    alive_ = false;
    since_ = clock_();
    for (QPushButton* button : buttons_) {
        button->setEnabled(false);
    }
    timer_.start(kPollMilliseconds);
}

bool ProgramBox::LooksAlive() {
    if (!alive_ && clock_() - since_ >= kDeadMilliseconds) {
        alive_ = true;
        timer_.stop();
        for (QPushButton* button : buttons_) {
            button->setEnabled(true);
        }
        no_->setFocus();
    }
    return alive_;
}

void ProgramBox::showEvent(QShowEvent* event) {
    BeginDeath();
    QDialog::showEvent(event);
}

void ProgramBox::paintEvent(QPaintEvent* event) {
    // Nobody can have read it before.
    if (!std::exchange(painted_, true)) {
        BeginDeath();
    }
    QDialog::paintEvent(event);
}

bool ProgramBox::eventFilter(QObject*, QEvent* event) {
    if (!isVisible() || !IsKeyOrPress(event->type()) || LooksAlive()) {
        return false;
    }
    BeginDeath();
    return true;
}

}  // namespace qt_adapter
