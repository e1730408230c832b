// SPDX-License-Identifier: Apache-2.0
// The product under measurement: the built plug-in in the built head unit's libraries, without the host's frame.
//
//   product count PAGE               prints how many widgets the page shows
//   product switch STEPS PAGE PAGE   the two pages shown in turn
//   product drag STEPS pad           a finger that draws over the balance/fader pad
//   product drag STEPS eq            a finger on a slider of the EQ page
//   product drag STEPS slider        a finger on a slider of Volume Settings
//   product drag STEPS scroll        a finger that scrolls Volume Settings
//   product step STEPS slope|freq|level   its plus key on the Crossover page, tapped
//   product repeat STEPS             the plus keys of the Timing page, each held for a while
//   product reset STEPS              whole resets: the dialog, the reset, the settings root again
//
// Pages: general, eq, crossover, timing, factoryeq, root, volume, gain, reset.

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
    const char *slot;  ///< of the container, that shows the page; with a tab, it takes the tab's number
    const char *area;  ///< the widget that holds what it shows
    int tab = -1;
};

const Page pages[] = {
    {"general", "onPageChanged", "right_widget", 0},
    {"eq", "onPageChanged", "right_widget", 1},
    {"crossover", "onPageChanged", "right_widget", 2},
    {"timing", "onPageChanged", "right_widget", 3},
    {"factoryeq", "onPageChanged", "right_widget", 4},
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
        const Page &row = pageOf(page);
        if (row.tab >= 0) {
            QMetaObject::invokeMethod(m_container, row.slot, Q_ARG(int, row.tab));
        } else {
            QMetaObject::invokeMethod(m_container, row.slot);
        }
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

    /// The first band of the EQ page, from the top to the bottom; every eighth step sends the curve.
    void dragEq(int steps) {
        show(QStringLiteral("eq"));
        QWidget *first = nullptr;
        for (QWidget *child : m_widget->findChildren<QWidget *>()) {
            if (!first && child->inherits("cm::SliderBarWidget")) {
                first = child;
            }
        }
        bench::drag(first, first->rect(), steps, Qt::Vertical, [this] { m_app.time().advance(bench::touchInterval); });
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

    void step(int steps, const QString &what) {
        show(QStringLiteral("crossover"));
        auto *key = m_widget->findChild<QWidget *>(QStringLiteral("key_%1_plus").arg(what));
        for (int i = 0; i < steps; ++i) {
            bench::tap(key);
        }
    }

    /// A key is left before it reaches the end of its range.
    void repeat(int steps) {
        show(QStringLiteral("timing"));
        const char *const keys[] = {"key_fl_plus", "key_fr_plus", "key_rl_plus", "key_rr_plus"};
        QWidget *key = nullptr;
        for (int i = 0; i < steps; ++i) {
            if (i % stepsOfAKey == 0) {
                if (key) {
                    bench::sendMouse(key, QEvent::MouseButtonRelease, key->rect().center());
                }
                key = m_widget->findChild<QWidget *>(QLatin1String(keys[i / stepsOfAKey % 4]));
                bench::sendMouse(key, QEvent::MouseButtonPress, key->rect().center());
                m_app.time().advance(repeatDelay - repeatInterval);
            }
            m_app.time().advance(repeatInterval);
            bench::settle();
        }
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
    static constexpr int resetTime = 2500;      // ms
    static constexpr int repeatDelay = 1000;    // ms
    static constexpr int repeatInterval = 200;  // ms
    static constexpr int stepsOfAKey = 60;

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
    // As in the host, which writes debug lines only when it is asked to.
    QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, false);
    const QStringList args = app.arguments().mid(1);

    Product product(app);
    if (args.value(0) == QLatin1String("count")) {
        std::printf("%d\n", product.count(args.value(1)));
    } else if (args.value(0) == QLatin1String("switch")) {
        product.switchPages(args.value(1).toInt(), args.value(2), args.value(3));
    } else if (args.value(0) == QLatin1String("drag") && args.value(2) == QLatin1String("pad")) {
        product.dragPad(args.value(1).toInt());
    } else if (args.value(0) == QLatin1String("drag") && args.value(2) == QLatin1String("eq")) {
        product.dragEq(args.value(1).toInt());
    } else if (args.value(0) == QLatin1String("drag") && args.value(2) == QLatin1String("slider")) {
        product.dragSlider(args.value(1).toInt());
    } else if (args.value(0) == QLatin1String("drag") && args.value(2) == QLatin1String("scroll")) {
        product.scroll(args.value(1).toInt());
    } else if (args.value(0) == QLatin1String("step")) {
        product.step(args.value(1).toInt(), args.value(2));
    } else if (args.value(0) == QLatin1String("repeat")) {
        product.repeat(args.value(1).toInt());
    } else if (args.value(0) == QLatin1String("reset")) {
        product.reset(args.value(1).toInt());
    } else {
        qCritical(
            "product count PAGE | product switch STEPS PAGE PAGE | product drag STEPS pad|eq|slider|scroll | "
            "product step STEPS slope|freq|level | product repeat STEPS | product reset STEPS");
        return 2;
    }
    headunit::closeSettings();
    return 0;
}
