// The product under measurement: the built plug-in in the built head unit's libraries, without the host's frame.
//
//   product count PAGE               prints how many widgets the page shows
//   product switch STEPS PAGE PAGE   the two pages shown in turn
//   product drag STEPS pad           a finger that draws over the balance/fader pad
//   product drag STEPS slider        a finger on a slider of Volume Settings
//   product drag STEPS scroll        a finger that scrolls Volume Settings
//   product reset STEPS              whole resets: the dialog, the reset, the settings root again
//
// Pages: general, root, volume, gain, reset.

#include "appplugin.h"
#include "benchtools.h"
#include "headunit/settings/unitroot.h"
#include "headunit/settings/unitsettings.h"
#include "headunit/toolkit/unitapplication.h"
#include "horizontalslider.h"
#include "windowinterface.h"

#include <QLabel>
#include <QLoggingCategory>
#include <QPluginLoader>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>

#include <cstdio>

namespace {

struct Page {
    const char *name;
    const char *slot;  ///< of the container, that shows the page
    const char *area;  ///< the widget that holds what it shows
};

const Page pages[] = {
    {"general", "onBackClicked", "right_widget"},
    {"root", "onAdvancedChanged", "right_widget"},
    {"volume", "onShowAudioSettings", "Audiovolumsettings"},
    {"gain", "onShowSourceGain", "Audiosourcegainsettings"},
    {"reset", "onShowResetAudiosettings", "Audiosettingsreset"},
};

const Page &pageOf(const QString &name) {
    for (const Page &page : pages) {
        if (name == QLatin1String(page.name)) {
            return page;
        }
    }
    qFatal("no such page: %s", qPrintable(name));
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
        QMetaObject::invokeMethod(m_container, pageOf(page).slot);
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
        const auto widgets =
            m_widget->findChild<QWidget *>(QLatin1String(pageOf(page).area))->findChildren<QWidget *>();
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

    /// The first slider of Volume Settings, over the way of its knob.
    void dragSlider(int steps) {
        show(QStringLiteral("volume"));
        auto *slider = m_widget->findChild<HorizontalSlider *>();
        bench::drag(slider, slider->rect().adjusted(28, 0, -28, 0), steps, Qt::Horizontal);
    }

    void scroll(int steps) {
        show(QStringLiteral("volume"));
        // The viewport stays where it is while the rows move under the finger.
        auto *area = m_widget->findChild<QScrollArea *>();
        area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
        auto *viewport = area->viewport();
        bench::drag(viewport, QRect(40, 20, 200, 400), steps, Qt::Vertical);
    }

    void reset(int steps) {
        for (int i = 0; i < steps; ++i) {
            show(QStringLiteral("reset"));
            auto *dialog = m_widget->findChild<QWidget *>(QStringLiteral("Audiosettingsreset"));
            QMetaObject::invokeMethod(dialog, "onAcceptClicked");
            bench::settle();
            m_app.time().advance(resetTime);
            bench::settle();
        }
    }

private:
    static constexpr int resetTime = 2500;  // ms

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
    } else if (args.value(0) == QLatin1String("drag") && args.value(2) == QLatin1String("slider")) {
        product.dragSlider(args.value(1).toInt());
    } else if (args.value(0) == QLatin1String("drag") && args.value(2) == QLatin1String("scroll")) {
        product.scroll(args.value(1).toInt());
    } else if (args.value(0) == QLatin1String("reset")) {
        product.reset(args.value(1).toInt());
    } else {
        qCritical(
            "product count PAGE | product switch STEPS PAGE PAGE | product drag STEPS pad|slider|scroll | "
            "product reset STEPS");
        return 2;
    }
    headunit::closeSettings();
    return 0;
}
