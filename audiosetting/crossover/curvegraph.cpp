#include "curvegraph.h"

#include "curvelabel.h"

#include <QPainter>

CurveGraph::CurveGraph(QWidget *parent) : QFrame(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void CurveGraph::setGround(const QPixmap &ground) {
    m_ground = ground;
    m_composed = QPixmap();
    update();
}

void CurveGraph::paintEvent(QPaintEvent *) {
    const std::vector<Shown> now = shown();
    if (m_composed.isNull() || m_composedOf != now) {
        m_composedOf = now;
        compose();
    }
    QPainter(this).drawPixmap(0, 0, m_composed);
}

std::vector<CurveGraph::Shown> CurveGraph::shown() const {
    std::vector<Shown> list;
    for (QObject *child : children()) {
        if (CurveLabel *label = qobject_cast<CurveLabel *>(child)) {
            list.push_back(Shown{label->curveKey(), label->geometry()});
        }
    }
    return list;
}

void CurveGraph::compose() {
    m_composed = m_ground.copy(QRect(QPoint(0, 0), size() * m_ground.devicePixelRatio()));
    QPainter painter(&m_composed);
    for (QObject *child : children()) {
        if (CurveLabel *label = qobject_cast<CurveLabel *>(child)) {
            label->paintCurve(painter);
        }
    }
}
