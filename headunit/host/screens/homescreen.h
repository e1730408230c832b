// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>
#include <QWidget>

namespace headunit {

/// The home screen: a tile for each application, for the band-adjust panel and for the rest of the car, and lines for
/// what the driver should know: why nothing is heard, and each plug-in that does not work.
class HomeScreen : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString silence READ silence)
public:
    explicit HomeScreen(QWidget *parent);

    /// \a applications are ids, \a failures readable lines.
    void setApplications(const QStringList &applications, const QStringList &failures);

    /// Why nothing is heard, as a text's id, and whether that is a fault. 0: all is heard.
    void setSilence(int textId, bool fault);
    QString silence() const;

Q_SIGNALS:
    void applicationChosen(const QString &id);
    void bandAdjustChosen();
    void carChosen();

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void addTiles(const QStringList &applications);

    QStringList m_failures;
    int m_silenceTextId = 0;
    bool m_silenceIsFault = false;
};

}  // namespace headunit
