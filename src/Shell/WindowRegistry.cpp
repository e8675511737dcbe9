#include "WindowRegistry.h"

#include "AppModel.h"
#include "Platform/ProcessMemory.h"

#include <QCursor>
#include <QFile>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlFile>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

bool viewExists(const QUrl& source)
{
    const QString file = QQmlFile::urlToLocalFileOrQrc(source);
    return !file.isEmpty() && QFile::exists(file);
}

// The item the view lays its content out in: the first child of the window's content item.
QQuickItem* contentOf(QQuickWindow& window)
{
    const auto children = window.contentItem()->childItems();
    return children.isEmpty() ? nullptr : children.first();
}

QSize contentSize(QQuickWindow& window)
{
    QQuickItem* content = contentOf(window);
    if (content && content->implicitWidth() > 0 && content->implicitHeight() > 0)
        return QSizeF(content->implicitWidth(), content->implicitHeight()).toSize();
    return window.size();
}

void fixSize(QQuickWindow& window)
{
    const QSize size = contentSize(window);
    window.setMinimumSize(size);
    window.setMaximumSize(size);
    window.resize(size);
}

QScreen* screenUnderPointer()
{
    QScreen* screen = QGuiApplication::screenAt(QCursor::pos());
    return screen ? screen : QGuiApplication::primaryScreen();
}

void bringForward(QQuickWindow& window)
{
    window.show();
    window.raise();
    window.requestActivate();
}

}  // namespace

WindowRegistry::WindowRegistry(QQmlEngine& engine, AppModel& model, std::vector<WindowDefinition> windows,
                               QObject* parent)
    : QObject(parent), engine_(engine), model_(model), windows_(std::move(windows))
{
}

WindowRegistry::~WindowRegistry()
{
    // Each window hides as it is destroyed; the registry going away has no use for hearing that.
    const auto windows = std::exchange(open_, {});
    for (const auto& window : windows) {
        if (window) {
            disconnect(window, nullptr, this, nullptr);
            delete window.data();
        }
    }
}

const WindowDefinition* WindowRegistry::definition(const QString& id) const
{
    const auto found = std::find_if(windows_.begin(), windows_.end(), [&](const WindowDefinition& s) { return s.id == id; });
    return found == windows_.end() ? nullptr : &*found;
}

QQuickWindow* WindowRegistry::window(const QString& id) const
{
    return qobject_cast<QQuickWindow*>(open_.value(id).data());
}

QQuickWindow* WindowRegistry::open(const QString& id)
{
    QQuickWindow* window = this->window(id);
    if (!window) {
        const WindowDefinition* definition = this->definition(id);
        if (!definition || !viewExists(definition->source))
            return nullptr;
        window = create(*definition);
        if (!window)
            return nullptr;
    }
    bringForward(*window);
    return window;
}

void WindowRegistry::close(const QString& id)
{
    if (QQuickWindow* window = this->window(id))
        window->close();
}

QQuickWindow* WindowRegistry::create(const WindowDefinition& definition)
{
    QQmlComponent component(&engine_, definition.source);
    QObject* object = component.createWithInitialProperties({{QStringLiteral("model"), QVariant::fromValue(&model_)}});
    auto* window = qobject_cast<QQuickWindow*>(object);
    if (!window) {
        qWarning().noquote() << "Cannot open the window" << definition.id << component.errorString();
        delete object;
        return nullptr;
    }
    window->setTitle(definition.title);
    applySize(*window, definition);
    place(*window, definition);
    watchClosing(*window, definition.id);
    open_.insert(definition.id, window);
    return window;
}

void WindowRegistry::applySize(QQuickWindow& window, const WindowDefinition& definition)
{
    if (!definition.fixedToContent()) {
        window.resize(lastFrames_.value(definition.id, QRect(QPoint(), *definition.defaultSize)).size());
        return;
    }
    fixSize(window);
    // The content may grow or shrink while the window is open, as a list fills in.
    if (QQuickItem* content = contentOf(window)) {
        const auto refit = [&window] { fixSize(window); };
        connect(content, &QQuickItem::implicitWidthChanged, &window, refit);
        connect(content, &QQuickItem::implicitHeightChanged, &window, refit);
    }
}

void WindowRegistry::place(QQuickWindow& window, const WindowDefinition& definition)
{
    if (!definition.recentred && lastFrames_.contains(definition.id)) {
        window.setPosition(lastFrames_.value(definition.id).topLeft());
        return;
    }
    const QRect screen = screenUnderPointer()->availableGeometry();
    QRect frame(QPoint(), window.size());
    frame.moveCenter(screen.center());
    window.setPosition(frame.topLeft());
}

void WindowRegistry::watchClosing(QQuickWindow& window, const QString& id)
{
    // A window hides when it closes, whether the user closed it or its view did.
    // Seen as a plain window, which is all that is left of it when it hides while destroyed.
    QWindow* plain = &window;
    connect(plain, &QWindow::visibleChanged, this, [this, plain, id](bool visible) {
        if (visible)
            return;
        lastFrames_.insert(id, plain->geometry());
        forget(id);
    });
}

void WindowRegistry::forget(const QString& id)
{
    if (QWindow* window = open_.take(id).data()) {
        // Once the window and all it held are gone, the pages they leave free go back to the
        // system: a closed disk map would otherwise keep its heap for the rest of the session.
        connect(window, &QObject::destroyed, [] { QTimer::singleShot(0, &ProcessMemory::releaseFreePages); });
        window->deleteLater();
    }
}
