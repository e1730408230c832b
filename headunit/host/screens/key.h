// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractButton>

namespace headunit {

/// A touch key of the host's own screens: a raised plate with a text, a picture, or a picture above a text.
///
/// It sounds the key click and lights up at touch-down. A checked key carries a bar besides its fill.
class Key : public QAbstractButton {
    Q_OBJECT
public:
    Key(const QString &name, const QRect &geometry, QWidget *parent);

    /// Shows the text of that id in the language in force. 0: the text set with setText().
    void setTextId(int id);
    /// Shows the host's pictures name_n and, while pressed, name_p.
    void setPicture(const QString &name);

    /// What a key is called that shows a picture alone, or whose caption stands beside it: the text of that id, and
    /// what the key does to it.
    void setNameTextId(int id, const QString &action = QString());
    /// What screen readers call the key, in the language in force.
    QString name() const;

    /// Gives the key the warm edge: what it does is not done lightly.
    void setWarns(bool warns);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QString caption() const;

    int m_textId = 0;
    int m_nameTextId = 0;
    QString m_nameAction;
    QString m_picture;
    bool m_warns = false;
};

}  // namespace headunit
