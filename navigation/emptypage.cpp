#include "emptypage.h"

#include <QLabel>

EmptyPage::EmptyPage(QWidget *parent) : QWidget(parent) {
    // Full-width pages are children of the container, tab pages of their region.
    const QRect fullWidth(0, 130, 1024, 470);
    setGeometry(parent->rect().contains(fullWidth) ? fullWidth : parent->rect());
    QLabel *text = new QLabel(tr("This page is not built yet"), this);
    text->setGeometry(rect());
    text->setAlignment(Qt::AlignCenter);
    text->setStyleSheet(QStringLiteral("color: #57575F; font-size: 18pt;"));
}
