// SPDX-License-Identifier: Apache-2.0
#include "navigation/c20_060_audiosetting_container_widget.h"

#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"
#include "ui_c20_060_setup_container.h"

#include <QTranslator>

namespace {

struct Region {
    const char *name;
    QRect geometry;
};

// From the lowest to the topmost.
const Region regions[] = {
    {"bottom_widget", QRect(0, 130, 1024, 470)},
    {"right_widget", QRect(136, 130, 888, 470)},
    {"left_widget", QRect(0, 130, 136, 470)},
    {"top_widget", QRect(0, 0, 1024, 130)},
};

class FormTitle : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override {
        return QLatin1String(context) + QLatin1Char('/') + QLatin1String(source);
    }
};

}  // namespace

class tst_Container : public PageTest {
    Q_OBJECT
private slots:
    void laysOutFourPlainRegions() {
        Ui::c20_060_setup_container form;
        c20_060_audiosetting_container_widget container(nullptr, &form);
        QCOMPARE(container.size(), QSize(1024, 600));
        QCOMPARE(container.objectName(), QStringLiteral("c20_060_setup_container"));
        QCOMPARE(container.windowTitle(), QStringLiteral("Form"));

        const auto children = container.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(children.size(), 4);
        // The order of children is the order of stacking.
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(children[i]->objectName(), QLatin1String(regions[i].name));
            QCOMPARE(children[i]->geometry(), regions[i].geometry);
            QCOMPARE(children[i]->metaObject()->className(), "QWidget");
            QVERIFY(children[i]->children().isEmpty());
        }
        QCOMPARE(form.bottom_widget, children[0]);
        QCOMPARE(form.right_widget, children[1]);
        QCOMPARE(form.left_widget, children[2]);
        QCOMPARE(form.top_widget, children[3]);
    }

    void regionsCoverThePagesInOrder() {
        Ui::c20_060_setup_container form;
        c20_060_audiosetting_container_widget container(nullptr, &form);
        show(&container);
        QCOMPARE(container.childAt(500, 20), form.top_widget);
        QCOMPARE(container.childAt(20, 300), form.left_widget);
        QCOMPARE(container.childAt(500, 300), form.right_widget);
        form.right_widget->hide();
        QCOMPARE(container.childAt(500, 300), form.bottom_widget);
    }

    void titleIsTranslatedInTheFormsContext() {
        FormTitle translator;
        QCoreApplication::installTranslator(&translator);
        Ui::c20_060_setup_container form;
        c20_060_audiosetting_container_widget container(nullptr, &form);
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(container.windowTitle(), QStringLiteral("c20_060_setup_container/Form"));
    }

    void isAChildOfItsParentAndLeavesTheFormAlone() {
        QWidget parent;
        auto form = new Ui::c20_060_setup_container;
        auto container = new c20_060_audiosetting_container_widget(&parent, form);
        QCOMPARE(container->parentWidget(), &parent);
        delete container;
        delete form;  // the caller's
    }

    void hasNoSignalsOrSlots() {
        const QMetaObject &meta = c20_060_audiosetting_container_widget::staticMetaObject;
        QCOMPARE(meta.methodCount(), meta.methodOffset());
    }
};

PAGE_TEST_MAIN(tst_Container)
#include "tst_container.moc"
