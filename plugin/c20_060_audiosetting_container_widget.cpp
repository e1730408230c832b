#include "c20_060_audiosetting_container_widget.h"

#include "resources/picture.h"
#include "ui_c20_060_setup_container.h"

#include <QPainter>
#include <QPaintEvent>

c20_060_audiosetting_container_widget::c20_060_audiosetting_container_widget(QWidget *parent,
                                                                             Ui::c20_060_setup_container *form)
    : QWidget(parent), m_ground(audiosetting::picture("audiosettings_bg")), m_form(form) {
    m_form->setupUi(this);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void c20_060_audiosetting_container_widget::paintEvent(QPaintEvent *event) {
    QPainter painter(this);
    painter.drawTiledPixmap(event->rect(), m_ground, event->rect().topLeft());
}
