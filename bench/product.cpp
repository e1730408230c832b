// The product under measurement: the built plug-in in the built head unit's libraries, without the host's frame.
//
//   product count PAGE               prints how many widgets the page shows
//   product switch STEPS PAGE PAGE   the two pages shown in turn
//   product drag STEPS pad           a finger that draws over the balance/fader pad
//
// Pages: general, root.

#include "appplugin.h"
#include "benchtools.h"
#include "headunit/settings/unitroot.h"
#include "headunit/settings/unitsettings.h"
#include "headunit/toolkit/unitapplication.h"
#include "windowinterface.h"

#include <QLabel>
#include <QLoggingCategory>
#include <QPluginLoader>
#include <QTemporaryDir>

#include <cstdio>

namespace {

/// The slots of the container that show a page.
const char *slotOfPage(const QString &page) {
    const struct {
        const char *name;
        const char *slot;
    } pages[] = {{"general", "onBackClicked"}, {"root", "onAdvancedChanged"}};
    for (const auto &row : pages) {
        if (page == QLatin1String(row.name)) {
            return row.slot;
        }
    }
    qFatal("no such page: %s", qPrintable(page));
}

class Product {
public:
    explicit Product(bench::Application &app) : m_app(app) {
        m_loader.setFileName(QStringLiteral(AUDIOSETTING_PLUGIN));
        auto *plugin = qobject_cast<AppPlugin *>(m_loader.instance());
        if (!plugin) {
            qFatal("%s", qPrintable(m_loader.errorString()));
        }
        m_window = plugin->requestWindowInterface(33);
        m_window->onCreate();
        m_window->onShow();
        m_widget = m_window->mainWidget();
        m_widget->setFixedSize(bench::screen);
        bench::showAndPaint(m_widget);
        m_container = m_widget->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    }

    void show(const QString &page) {
        QMetaObject::invokeMethod(m_container, slotOfPage(page));
        bench::settle();
    }

    void switchPages(int steps, const QString &a, const QString &b) {
        for (int i = 0; i < steps; ++i) {
            show(i % 2 == 0 ? a : b);
        }
    }

    int count(const QString &page) {
        show(QStringLiteral("root"));
        show(page);
        int visible = 0;
        const auto widgets = m_widget->findChild<QWidget *>(QStringLiteral("right_widget"))->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            visible += widget->isVisible() && widget->children().isEmpty();
        }
        return visible;
    }

    void dragPad(int steps) {
        auto *pad = m_widget->findChild<QWidget *>(QStringLiteral("balancefader_bg"))->parentWidget();
        for (QWidget *child : pad->findChildren<QWidget *>()) {
            if (child->inherits("settings::balanceFaderControl")) {
                const QRect area(QPoint(), QSize(180, 180));
                bench::drag(child, area.translated(child->rect().center() - area.center()), steps,
                            Qt::Horizontal | Qt::Vertical, [this] { m_app.time().advance(bench::touchInterval); });
            }
        }
    }

private:
    bench::Application &m_app;
    QPluginLoader m_loader;
    WindowInterface *m_window;
    QWidget *m_widget;
    QWidget *m_container;
};

}  // namespace

int main(int argc, char **argv) {
    QTemporaryDir root;
    headunit::setUnitRoot(root.path());
    headunit::prepareUnitApplication();
    bench::Application app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    headunit::openSettings();
    headunit::setUpUnitApplication();
    const QStringList args = app.arguments().mid(1);

    Product product(app);
    if (args.value(0) == QLatin1String("count")) {
        std::printf("%d\n", product.count(args.value(1)));
    } else if (args.value(0) == QLatin1String("switch")) {
        product.switchPages(args.value(1).toInt(), args.value(2), args.value(3));
    } else if (args.value(0) == QLatin1String("drag") && args.value(2) == QLatin1String("pad")) {
        product.dragPad(args.value(1).toInt());
    } else {
        qCritical("product count PAGE | product switch STEPS PAGE PAGE | product drag STEPS pad");
        return 2;
    }
    headunit::closeSettings();
    return 0;
}
