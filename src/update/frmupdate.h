// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>
#include <QStringList>

class QCheckBox;
class QLabel;
class QPushButton;
class SettingsStore;

// Offers a newer version: Yes downloads it, No does not; both store
// whether to look again at the next start.
class FrmUpdate final : public QDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FrmUpdate)

public:
    FrmUpdate(SettingsStore& settings, const QStringList& latest, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void answer(bool download);
    void retranslateUi();

    SettingsStore& m_settings;
    QLabel* lblMessage = nullptr;
    QLabel* lblCVersion = nullptr;
    QLabel* lblCVersion2 = nullptr;
    QLabel* lblLVersion = nullptr;
    QLabel* lblLVersion2 = nullptr;
    QCheckBox* chkAskAgain = nullptr;
    QPushButton* cmdYes = nullptr;
    QPushButton* cmdNo = nullptr;
};
