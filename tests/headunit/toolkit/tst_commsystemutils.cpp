// SPDX-License-Identifier: Apache-2.0
#include "commsystemutils.h"
#include "unittest.h"

#include <QLabel>

/// Fonts by object name.
class TestCommSystemUtils : public QObject {
    Q_OBJECT

    static QLabel *label(QWidget *parent, const QString &name) {
        auto *made = new QLabel(name, parent);
        made->setObjectName(name);
        QFont font("Some Other Family", 31);
        font.setBold(true);
        made->setFont(font);
        return made;
    }

private slots:
    void oneObject() { QCOMPARE(CommSystemUtils::instance(), CommSystemUtils::instance()); }

    void defaultFontKeepsSizeAndWeight() {
        QWidget page;
        auto *inner = new QWidget(&page);
        QLabel *first = label(&page, "Txt_title");
        QLabel *nested = label(inner, "Txt_");
        CommSystemUtils::instance()->sync_default_font(&page, "Txt_");
        for (QLabel *changed : {first, nested}) {
            QCOMPARE(changed->font().family(), headunit::unitFontFamily());
            QCOMPARE(changed->font().pointSize(), 31);
            QVERIFY(changed->font().bold());
        }
    }

    void onlyNamesThatBeginWithThePrefix() {
        QWidget page;
        page.setObjectName("Txt_page");
        page.setFont(QFont("Some Other Family", 31));
        const QList<QLabel *> others = {label(&page, "txt_title"), label(&page, "my_Txt_"), label(&page, "Txt"),
                                        label(&page, QString())};
        CommSystemUtils::instance()->sync_default_font(&page, "Txt_");
        for (QLabel *other : others) {
            QCOMPARE(other->font().family(), QString("Some Other Family"));
        }
        QCOMPARE(page.font().family(), QString("Some Other Family"));
    }

    void customFontReplacesAll() {
        QWidget page;
        QLabel *changed = label(&page, "Txt_title");
        QLabel *other = label(&page, "title");
        QFont font(headunit::unitFontFamily(), 20);
        CommSystemUtils::instance()->sync_custom_font(&page, font, "Txt_");
        QCOMPARE(changed->font().pointSize(), 20);
        QVERIFY(!changed->font().bold());
        QCOMPARE(other->font().pointSize(), 31);
    }

    void nothingToChangeIsHarmless() {
        QFont font;
        CommSystemUtils::instance()->sync_default_font(nullptr, "Txt_");
        CommSystemUtils::instance()->sync_custom_font(nullptr, font, "Txt_");
    }
};

UNIT_TEST_MAIN(TestCommSystemUtils)
#include "tst_commsystemutils.moc"
