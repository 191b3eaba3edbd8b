#include "adapters/qt/qt_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>
#include <QWindow>
#include <algorithm>
#include <cstdio>

#include "adapters/qt/box_look.h"
#include "adapters/qt/convert.h"
#include "adapters/qt/program_box.h"

namespace qt_adapter {

namespace {

constexpr int kIconMask = 0x70;
constexpr int kButtonMask = 0x0F;

constexpr qsizetype kLongestLine = 600;  // of a box; documents may bring any length
constexpr qsizetype kEndShown = 100;

/// A box without a title bears the program's name, as the person knows it.
QString TitleOr(TextView title) {
    return title.empty() ? QStringLiteral("パラピコ") : ToQt(title);
}

/// A box shows its buttons whatever a document makes it say: of a long line the middle goes.
QString Lines(TextView text) {
    QString lines = ToQt(text);
    QStringList list = lines.replace("\r\n", "\n").replace('\r', '\n').split('\n');
    for (QString& line : list) {
        if (line.size() > kLongestLine) {
            line = line.left(kLongestLine - kEndShown) + QStringLiteral(" […] ") +
                   line.right(kEndShown);
        }
    }
    return list.join('\n');
}

QMessageBox::Icon IconOf(int flags) {
    switch (flags & kIconMask) {
        case platform::kStop:
            return QMessageBox::Critical;
        case platform::kQuestion:
            return QMessageBox::Question;
        case platform::kExclamation:
            return QMessageBox::Warning;
        case platform::kInformation:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

bool IsPattern(const QString& name) {
    return name.contains('*') || name.contains('?');
}

}  // namespace

QStringList NameFilters(TextView filter) {
    const QStringList parts = ToQt(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns;
        for (const QString& part : parts[i + 1].split(';', Qt::SkipEmptyParts)) {
            const QString pattern = part.trimmed();
            // Names without a dot are files, too.
            patterns += pattern == "*.*" ? "*" : pattern;
        }
        filters += parts[i] + " (" + patterns.join(' ') + ")";
    }
    return filters;
}

QString DefaultSuffix(TextView filter) {
    const QStringList parts = ToQt(filter).split('|');
    if (parts.size() < 2) {
        return {};
    }
    const QString pattern = parts[1].section(';', 0, 0).trimmed();
    const QString suffix = pattern.section('.', -1);
    return pattern.contains('.') && !IsPattern(suffix) ? suffix : QString();
}

QtDialogs::QtDialogs(Gate& gate) : gate_(gate) {
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, &watcher_,
                     [this](const QWindow* window) { NoteActive(window); });
}

void QtDialogs::NoteActive(const QWindow* window) {
    QWidget* widget = window ? QWidget::find(window->winId()) : nullptr;
    if (widget && widget->windowType() == Qt::Window) {
        std::erase_if(recent_, [&](const auto& other) { return !other || other == widget; });
        recent_.insert(recent_.begin(), widget);
    }
}

QWidget* QtDialogs::BoxParent() const {
    if (QWidget* box = QApplication::activeModalWidget()) {
        return box;
    }
    QWidget* active = QApplication::activeWindow();
    if (active && active->windowType() != Qt::Tool) {
        return active;
    }
    QWidget* visible = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() == Qt::Window &&
            (!visible || window->isFullScreen())) {
            visible = window;
        }
    }
    if (!visible || !visible->isFullScreen()) {
        for (const QPointer<QWidget>& window : recent_) {
            if (window && window->isVisible()) {
                return window;
            }
        }
    }
    return visible;
}

platform::Answer QtDialogs::Message(TextView text, int flags, TextView title) {
    const bool asks = (flags & kButtonMask) == platform::kYesNo;
    if (gate_.NobodyThere()) {
        std::fprintf(stderr, "parapico: %s\n", qUtf8Printable(Lines(text)));
        return asks ? platform::Answer::No : platform::Answer::Ok;
    }
    QMessageBox box(IconOf(flags), TitleOr(title), Lines(text), QMessageBox::NoButton, BoxParent());
    const int side = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
    if (const QPixmap sign = SignOf(box.icon(), side, box.devicePixelRatioF()); !sign.isNull()) {
        box.setIconPixmap(sign);
    }
    GiveBoxFrame(box);
    box.setTextFormat(Qt::PlainText);
    box.setCursor(Qt::ArrowCursor);
    if (!asks) {
        box.addButton(QMessageBox::Ok);
        PlainButtons(box);
        gate_.Exec(box);
        return platform::Answer::Ok;
    }
    QPushButton* yes = box.addButton(QMessageBox::Yes);
    yes->setText(QStringLiteral("はい(&Y)"));
    QPushButton* no = box.addButton(QMessageBox::No);
    no->setText(QStringLiteral("いいえ(&N)"));
    PlainButtons(box);
    box.setDefaultButton(yes);
    box.setEscapeButton(no);
    return gate_.Exec(box) == QMessageBox::Yes ? platform::Answer::Yes : platform::Answer::No;
}

platform::ProgramAnswer QtDialogs::AskProgram(const platform::ProgramQuestion& question) {
    ProgramBox box(question, BoxParent());
    gate_.Exec(box);
    return box.Answer();
}

std::optional<Text> QtDialogs::Input(TextView prompt, TextView title, TextView initial) {
    QInputDialog box(BoxParent());
    GiveBoxFrame(box);
    box.setCursor(Qt::ArrowCursor);
    box.setInputMode(QInputDialog::TextInput);
    box.setWindowTitle(TitleOr(title));
    box.setLabelText(Lines(prompt));
    box.setTextValue(ToQt(initial));
    PlainButtons(box);
    if (gate_.Exec(box) != QDialog::Accepted) {
        return std::nullopt;
    }
    return FromQt(box.textValue());
}

/// The dialog set up as asked for, and what was chosen in it; none on cancel.
QStringList QtDialogs::Choose(const FileRequest& request, QFileDialog::FileMode mode) {
    QFileDialog box(BoxParent(), ToQt(request.title));
    box.setCursor(Qt::ArrowCursor);
    const bool save = request.save && mode == QFileDialog::AnyFile;
    box.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    box.setFileMode(mode);
    box.setOption(QFileDialog::HideNameFilterDetails);
    if (mode == QFileDialog::Directory) {
        box.setOption(QFileDialog::ShowDirsOnly);
    } else {
        box.setNameFilters(NameFilters(request.filter));
    }
    if (save) {
        box.setDefaultSuffix(DefaultSuffix(request.filter));
    }
    const QFileInfo asked(ToQt(request.initial));
    QStringList folders{ToQt(request.folder)};
    if (asked.isAbsolute()) {
        folders += asked.absolutePath();
    }
    folders += {lastFolder_, QDir::homePath()};
    const auto there = std::find_if(folders.begin(), folders.end(), [](const QString& folder) {
        return !folder.isEmpty() && QDir(folder).exists();
    });
    if (there != folders.end()) {
        box.setDirectory(*there);
    }
    const QString name = asked.fileName();
    if (!name.isEmpty() && !IsPattern(name) && mode != QFileDialog::Directory) {
        box.selectFile(name);
    }
    PlainButtons(box);
    if (gate_.Exec(box) != QDialog::Accepted || box.selectedFiles().isEmpty()) {
        return {};
    }
    const QFileInfo chosen(box.selectedFiles().first());
    lastFolder_ =
        mode == QFileDialog::Directory ? chosen.absoluteFilePath() : chosen.absolutePath();
    return box.selectedFiles();
}

std::optional<Text> QtDialogs::ChooseFile(const FileRequest& request) {
    const QStringList chosen =
        Choose(request, request.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    return chosen.isEmpty() ? std::nullopt
                            : std::optional(FromQt(QFileInfo(chosen.first()).absoluteFilePath()));
}

std::vector<Text> QtDialogs::ChooseFiles(const FileRequest& request) {
    std::vector<Text> paths;
    for (const QString& path : Choose(request, QFileDialog::ExistingFiles)) {
        paths.push_back(FromQt(QFileInfo(path).absoluteFilePath()));
    }
    return paths;
}

std::optional<Text> QtDialogs::ChooseFolder(const FileRequest& request) {
    const QStringList chosen = Choose(request, QFileDialog::Directory);
    return chosen.isEmpty() ? std::nullopt
                            : std::optional(FromQt(QFileInfo(chosen.first()).absoluteFilePath()));
}

}  // namespace qt_adapter
