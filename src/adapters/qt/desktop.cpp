#include "adapters/qt/desktop.h"

#include <QApplication>
#include <QDesktopServices>
#include <QIcon>
#include <QLibraryInfo>
#include <QPixmap>
#include <QScreen>
#include <QTranslator>
#include <QUrl>
#include <cstdio>
#include <cstdlib>

#include "adapters/qt/color_scheme.h"
#include "adapters/qt/convert.h"
#include "adapters/qt/end_watch.h"
#include "adapters/qt/form_loader.h"
#include "adapters/qt/gate.h"
#include "adapters/qt/media_player.h"
#include "adapters/qt/qt_dialogs.h"
#include "adapters/qt/qt_loop.h"
#include "adapters/qt/qt_monitors.h"
#include "adapters/qt/qt_text_renderer.h"
#include "adapters/qt/session_bus.h"
#include "adapters/qt/window_view.h"

namespace qt_adapter {

namespace {

constexpr double kSmallestFontPoints = 10;

constexpr int kNoDisplay = 1;

/// The toolkit ends a program that finds no display by a crash, with advice to reinstall it.
bool starting = false;

/// The toolkit ends the process after these words.
bool ReportsLostDisplay(const QString& message) {
    return message.startsWith("The X11 connection broke") ||
           message.startsWith("The Wayland connection");
}

void Tell(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtFatalMsg && starting) {
        std::fputs("parapico: no display was found; parapico --help lists what works without\n",
                   stderr);
        std::_Exit(kNoDisplay);
    }
    if (type == QtFatalMsg || ReportsLostDisplay(message)) {
        SaveAtLast();
    }
    // Of every window, the platform without a display tells what it cannot do with it.
    if (!message.startsWith("This plugin does not support") &&
        !message.startsWith("QStandardPaths: XDG_RUNTIME_DIR not set")) {
        std::fputs(qUtf8Printable(qFormatLogMessage(type, context, message) + '\n'), stderr);
    }
}

std::unique_ptr<QApplication> MakeApplication(int& argc, char** argv, bool offscreen) {
    if (QCoreApplication::instance()) {
        return nullptr;
    }
    if (offscreen) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qInstallMessageHandler(Tell);
    starting = true;
    auto application = std::make_unique<QApplication>(argc, argv);
    starting = false;
    return application;
}

/// The system's own font, with Japanese letters in their Japanese form whatever the locale.
void ChooseFont() {
    QFont font = QApplication::font();
    QStringList families = font.families();
    families += {QStringLiteral("Noto Sans CJK JP"), QStringLiteral("IPAPGothic")};
    font.setFamilies(families);
    if (font.pointSizeF() > 0 && font.pointSizeF() < kSmallestFontPoints) {
        font.setPointSizeF(kSmallestFontPoints);
    }
    QApplication::setFont(font);
}

}  // namespace

struct Desktop::Parts {
    Parts(int& argc, char** argv, const Options& options)
        : application(MakeApplication(argc, argv, options.offscreen)),
          loop(gate),
          dialogs(gate),
          monitors(options.screens, [this] { return MainScreen(); }) {}

    /// Reports monitors that come, go or change to the program, once the toolkit has dealt with it.
    void WatchScreens() {
        const auto changed = [this] {
            gate.Guarded([this] {
                if (monitors.onChanged) {
                    monitors.onChanged();
                }
            });
        };
        const auto follow = [this, changed](QScreen* screen) {
            QObject::connect(screen, &QScreen::geometryChanged, &watcher, changed,
                             Qt::QueuedConnection);
        };
        for (QScreen* screen : QGuiApplication::screens()) {
            follow(screen);
        }
        QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &watcher, follow);
        QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &watcher, changed,
                         Qt::QueuedConnection);
        QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, &watcher, changed,
                         Qt::QueuedConnection);
        QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, &watcher, changed,
                         Qt::QueuedConnection);
    }

    WindowView* ViewOf(const QString& name) {
        for (const auto& view : views) {
            if (QString::fromStdString(view->Window().Name()) == name) {
                return view.get();
            }
        }
        return nullptr;
    }

    /// Where the main window is, or would come up: a show in full screen does not make it.
    QScreen* MainScreen() {
        WindowView* view = ViewOf(QStringLiteral("Form1"));
        if (!view) {
            return nullptr;
        }
        if (const QWidget* widget = view->WidgetIfMade()) {
            return widget->screen();
        }
        const model::Window& window = view->Window();
        return ScreenAt((window.Left + window.Width / 2) / platform::kTwipsPerPixel,
                        (window.Top + window.Height / 2) / platform::kTwipsPerPixel);
    }

    // The application comes first and goes last.
    std::unique_ptr<QApplication> application;
    QTranslator translator;
    Gate gate;
    QtLoop loop;
    QtDialogs dialogs;
    QtMonitors monitors;
    QtTextRenderer textRenderer;
    std::unique_ptr<FormLoader> loader;
    std::vector<std::unique_ptr<WindowView>> views;
    // Only on a real desktop.
    std::unique_ptr<SessionBus> bus;
    std::unique_ptr<ColorScheme> colors;
    std::unique_ptr<MediaPlayer> player;
    std::unique_ptr<EndWatch> end;
    QObject watcher;  // goes first: its connections end with it
};

Desktop::Desktop(int& argc, char** argv, const Options& options)
    : parts_(std::make_unique<Parts>(argc, argv, options)) {
    QApplication::setApplicationName(QStringLiteral("parapico"));
    QApplication::setApplicationDisplayName(QString());
    QApplication::setDesktopFileName(QStringLiteral("parapico"));
    // The program ends when its logic says so, and not with its last window.
    QApplication::setQuitOnLastWindowClosed(false);
    if (parts_->translator.load(QStringLiteral("qtbase_ja"),
                                QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&parts_->translator);
    }
    const QIcon icon(QStringLiteral(":/parapico.svg"));
    if (!icon.isNull()) {
        QApplication::setWindowIcon(icon);
    }
    ChooseFont();
    if (options.screens.empty()) {
        parts_->WatchScreens();
    }
    if (!options.offscreen) {
        parts_->bus = std::make_unique<SessionBus>();
        parts_->colors = std::make_unique<ColorScheme>(*parts_->bus);
    }
}

Desktop::~Desktop() {
    UnmakeViews();
}

platform::EventLoop& Desktop::Loop() {
    return parts_->loop;
}
platform::Dialogs& Desktop::Dialogs() {
    return parts_->dialogs;
}
platform::Monitors& Desktop::Monitors() {
    return parts_->monitors;
}
platform::ProgramAnswer Desktop::AskProgram(const platform::ProgramQuestion& question) {
    return parts_->dialogs.AskProgram(question);
}
platform::TextRenderer& Desktop::TextRenderer() {
    return parts_->textRenderer;
}

void Desktop::Post(std::function<void()> call) {
    QMetaObject::invokeMethod(&parts_->watcher, std::move(call), Qt::QueuedConnection);
}

void Desktop::WatchEnd(Ending ending) {
    parts_->end = std::make_unique<EndWatch>(parts_->gate, std::move(ending));
}

void Desktop::UnwatchEnd() {
    parts_->end.reset();
}

void Desktop::MakeViews(model::Windows& windows, platform::Video* video) {
    UnmakeViews();
    parts_->loader = std::make_unique<FormLoader>(video);
    for (model::Window* window : windows.All()) {
        if (FormLoader::HasForm(window->Name())) {
            parts_->views.push_back(std::make_unique<WindowView>(
                *window, *parts_->loader, parts_->gate,
                [this](const QString& name) { return parts_->ViewOf(name); }));
            window->HasView = true;
        }
    }
    if (parts_->bus) {
        parts_->player = std::make_unique<MediaPlayer>(windows, parts_->gate, *parts_->bus);
    }
}

void Desktop::UnmakeViews() {
    const Gate::Mute mute(parts_->gate);
    parts_->player.reset();
    // Backwards: windows that stand over others go before them.
    while (!parts_->views.empty()) {
        parts_->views.back()->Window().HasView = false;
        parts_->views.pop_back();
    }
    parts_->loader.reset();
}

bool Desktop::Shot(model::Window& window, const std::string& file) {
    QWidget* widget = WidgetOf(window);
    if (!widget) {
        return false;
    }
    const Gate::Mute mute(parts_->gate);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    parts_->ViewOf(widget->objectName())->FlushCanvases();
    return widget->grab().save(QString::fromStdString(file), "PNG");
}

bool Desktop::SamePixels(const std::string& file, const std::string& other) {
    QImage pictures[] = {QImage(QString::fromStdString(file)),
                         QImage(QString::fromStdString(other))};
    for (QImage& picture : pictures) {
        picture.convertTo(QImage::Format_RGB32);
    }
    return !pictures[0].isNull() && pictures[0] == pictures[1];
}

bool Desktop::OpenText(TextView path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(ToQt(path)));
}

QWidget* Desktop::WidgetOf(model::Window& window) {
    WindowView* view = parts_->ViewOf(QString::fromStdString(window.Name()));
    return view ? view->Widget() : nullptr;
}

}  // namespace qt_adapter
