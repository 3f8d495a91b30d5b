#include "QuickScreen.h"

#include <QAccessible>
#include <QDir>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QRegularExpression>
#include <QTest>

#include "App/ui/QmlModule.h"

namespace larkspan {

int coveredPixels(const QImage& image, const QRect& area, QColor color) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QColor c = image.pixelColor(x, y);
            const bool near = !color.isValid() ||
                              (qAbs(c.red() - color.red()) < 40 && qAbs(c.green() - color.green()) < 40 &&
                               qAbs(c.blue() - color.blue()) < 40);
            count += c.alpha() > 128 && near;
        }
    }
    return count;
}

QPalette schemePalette(ColorScheme scheme) {
    const bool dark = scheme == ColorScheme::dark;
    // The rest follows from the button and window colours, as in a desktop theme; the accent is blue.
    QPalette palette(QColor(dark ? "#3a3a3a" : "#e8e8e7"), QColor(dark ? "#1e1e1e" : "#f6f5f4"));
    palette.setColor(QPalette::Base, QColor(dark ? "#262626" : "#ffffff"));
    palette.setColor(QPalette::Highlight, QColor("#3584e4"));
    palette.setColor(QPalette::Link, QColor(dark ? "#78aeed" : "#1a5fb4"));
    return palette;
}

QuickScreen::QuickScreen() : originalPalette_(QGuiApplication::palette()) {
    // Any warning from here to the end of the test function fails it: a view that warns is broken.
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    prepareQmlEngine(engine_);
    setColorScheme(ColorScheme::light);
}

QuickScreen::~QuickScreen() {
    object_.reset();
    ownWindow_.reset();
    QGuiApplication::setPalette(originalPalette_);
}

bool QuickScreen::load(const QString& typeName, const QVariantMap& properties, QSize size) {
    return loadText(QStringLiteral("import Larkspan\n%1 {}\n").arg(typeName).toUtf8(), properties, size);
}

bool QuickScreen::loadCard(const QString& typeName, QObject* controller) {
    engine_.rootContext()->setContextProperty(QStringLiteral("cardController"), controller);
    const QByteArray scene = QStringLiteral(R"(
import QtQuick
import Larkspan

Rectangle {
    color: Qt.darker(palette.window, 1.25)
    Loader {
        objectName: "card"
        x: 20
        y: 20
        width: 340
        height: 200
        Component.onCompleted: setSource("qrc:/qt/qml/Larkspan/%1.qml", {controller: cardController})
    }
}
)")
                                 .arg(typeName)
                                 .toUtf8();
    return loadText(scene, {}, {380, 240});
}

bool QuickScreen::loadText(const QByteArray& qml, const QVariantMap& properties, QSize size) {
    object_.reset();
    ownWindow_.reset();
    QQmlComponent component(&engine_);
    component.setData(qml, QUrl(QStringLiteral("qrc:/screen-test/View.qml")));
    if (component.isReady())
        object_.reset(component.createWithInitialProperties(properties));
    if (!object_) {
        qInfo().noquote() << "View not created:" << component.errorString();
        return false;
    }
    window_ = qobject_cast<QQuickWindow*>(object_.get());
    root_ = qobject_cast<QQuickItem*>(object_.get());
    if (window_) {
        root_ = window_->contentItem();
    } else if (root_) {
        ownWindow_ = std::make_unique<QQuickWindow>();
        window_ = ownWindow_.get();
        root_->setParentItem(window_->contentItem());
        root_->setSize(size);
        window_->setColor(schemePalette(scheme_).color(QPalette::Window));
    } else {
        qInfo() << "View is neither an Item nor a Window";
        return false;
    }
    window_->resize(size);
    window_->show();
    return QTest::qWaitForWindowExposed(window_);
}

void QuickScreen::setColorScheme(ColorScheme scheme) {
    scheme_ = scheme;
    const QPalette palette = schemePalette(scheme);
    QGuiApplication::setPalette(palette);
    if (ownWindow_)
        window_->setColor(palette.color(QPalette::Window));
}

QQuickItem* findItem(QQuickItem* item, const QString& objectName) {
    if (item->objectName() == objectName)
        return item;
    for (QQuickItem* child : item->childItems())
        if (QQuickItem* found = findItem(child, objectName))
            return found;
    return nullptr;
}

QQuickItem* QuickScreen::find(const QString& objectName) const {
    QQuickItem* item = root_ ? findItem(root_, objectName) : nullptr;
    // Popups live in the window's overlay, beside the view.
    return item || !window_ ? item : findItem(window_->contentItem(), objectName);
}

void clickItem(QQuickWindow* window, const QQuickItem* item, bool hover) {
    const QPoint centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    if (hover)
        QTest::mouseMove(window, centre);
    else
        QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, centre);
}

bool QuickScreen::click(const QString& objectName, bool hover) {
    const QQuickItem* item = find(objectName);
    const bool shown = item && item->isVisible();
    if (shown)
        clickItem(window_, item, hover);
    return shown;
}

bool QuickScreen::press(const QString& objectName) {
    QQuickItem* item = find(objectName);
    if (!item || !item->isVisible())
        return false;
    QAccessible::setActive(true);
    QAccessibleInterface* element = QAccessible::queryAccessibleInterface(item);
    QAccessibleActionInterface* actions = element ? element->actionInterface() : nullptr;
    if (!actions || !actions->actionNames().contains(QAccessibleActionInterface::pressAction()))
        return false;
    actions->doAction(QAccessibleActionInterface::pressAction());
    return true;
}

bool QuickScreen::focusByKeyboard(const QString& objectName) {
    QQuickItem* item = find(objectName);
    if (!item || !item->isVisible())
        return false;
    // Tab through the window as a person would; an item Tab never reaches is not reachable.
    // At least once, so that focus a click gave it turns into keyboard focus.
    int presses = 0;
    do {
        QTest::keyClick(window_, Qt::Key_Tab);
    } while (++presses < 64 && !item->hasActiveFocus());
    return item->hasActiveFocus();
}

QString QuickScreen::text(const QString& objectName) const {
    const QQuickItem* item = find(objectName);
    return item ? item->property("text").toString() : QString();
}

bool QuickScreen::visible(const QString& objectName) const {
    const QQuickItem* item = find(objectName);
    return item && item->isVisible();
}

QImage QuickScreen::grab() {
    if (!window_)
        return {};
    QCoreApplication::processEvents();
    return window_->grabWindow();
}

namespace {

bool isControl(QAccessible::Role role) {
    static const QList<QAccessible::Role> controls = {
        QAccessible::Button,       QAccessible::CheckBox, QAccessible::RadioButton, QAccessible::PageTab,
        QAccessible::ListItem,     QAccessible::MenuItem, QAccessible::Slider,      QAccessible::SpinBox,
        QAccessible::EditableText, QAccessible::ComboBox, QAccessible::Link};
    return controls.contains(role);
}

// The name a screen reader hears. Offscreen, a control that shows a text does not publish it as its
// name (no accessibility bridge runs to ask for it), as it does on the accessibility bus.
QString nameOf(QAccessibleInterface* element) {
    QString name = element->text(QAccessible::Name);
    if (name.trimmed().isEmpty() && element->object())
        name = element->object()->property("text").toString();
    return name;
}

// QObject::receivers() is protected; a pointer to it, taken through a subclass, may be called on any
// QObject.
struct SignalReceivers : QObject {
    static int of(const QObject* object, const char* signal) {
        return (object->*(&SignalReceivers::receivers))(signal);
    }
};

// Whether the element's press or toggle reaches a handler. Offering the action is not enough: Qt 6.4's
// buttons offer Press and do nothing on it unless the view answers `Accessible.onPressAction`.
bool pressReachesAHandler(QObject* object) {
    for (QObject* child : object->children()) {
        if (child->inherits("QQuickAccessibleAttached"))
            return SignalReceivers::of(child, SIGNAL(pressAction())) > 0 ||
                   SignalReceivers::of(child, SIGNAL(toggleAction())) > 0;
    }
    return false;
}

QString describe(QAccessibleInterface* element) {
    QObject* object = element->object();
    return QStringLiteral("%1 \"%2\" (%3)")
        .arg(QString::fromLatin1(object ? object->metaObject()->className() : "?"), nameOf(element),
             object ? object->objectName() : QString());
}

void audit(QAccessibleInterface* element, QStringList& problems) {
    if (!element || element->state().invisible)
        return;
    const QAccessible::Role role = element->role();
    QAccessibleActionInterface* actions = element->actionInterface();
    const QStringList actionNames = actions ? actions->actionNames() : QStringList();
    const bool pressable = actionNames.contains(QAccessibleActionInterface::pressAction()) ||
                           actionNames.contains(QAccessibleActionInterface::toggleAction());
    if ((isControl(role) || pressable) && nameOf(element).trimmed().isEmpty())
        problems << QStringLiteral("control without a name: ") + describe(element);
    QObject* object = element->object();
    if (pressable && object && !pressReachesAHandler(object))
        problems << QStringLiteral("offers Press but nothing answers it: ") + describe(element);
    for (int i = 0; i < element->childCount(); ++i)
        audit(element->child(i), problems);
}

}  // namespace

QString QuickScreen::accessibleName(const QString& objectName) const {
    QQuickItem* item = find(objectName);
    QAccessible::setActive(true);
    QAccessibleInterface* element = item ? QAccessible::queryAccessibleInterface(item) : nullptr;
    return element ? nameOf(element) : QString();
}

bool QuickScreen::saveScreenshots(const QString& test, const QString& state) {
    const QString dir = QStringLiteral(LARKSPAN_SCREENSHOT_DIR);
    bool saved = window_ && QDir().mkpath(dir);
    for (const auto& [scheme, name] :
         {std::pair(ColorScheme::light, "light"), std::pair(ColorScheme::dark, "dark")}) {
        setColorScheme(scheme);
        // As when a screen reader starts: every control that exists now publishes its role and actions.
        QAccessible::setActive(true);
        QStringList problems;
        audit(QAccessible::queryAccessibleInterface(window_), problems);
        for (const QString& problem : problems)
            qWarning().noquote() << test << state << name << "is not accessible:" << problem;
        const QImage image = grab();
        saved = saved && !image.isNull() &&
                image.save(QStringLiteral("%1/%2-%3-%4.png").arg(dir, test, state, QLatin1String(name)));
    }
    setColorScheme(ColorScheme::light);
    return saved;
}

}  // namespace larkspan
