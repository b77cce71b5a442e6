// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/themetab.h"

#include "platform/desktop.h"
#include "presentation/colourswatch.h"
#include "presentation/themeservice.h"
#include "widgets/namedcontrol.h"

#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace {

// The swatches in the order of the theme's fields and their names.
constexpr ThemeFile::Colour ThemeFile::Theme::*SwatchFields[7] = {
    &ThemeFile::Theme::formBack,   &ThemeFile::Theme::listBack, &ThemeFile::Theme::listText,
    &ThemeFile::Theme::textBack,   &ThemeFile::Theme::textText, &ThemeFile::Theme::progressBack,
    &ThemeFile::Theme::progressBar};
const char* const SwatchNames[7] = {"frmBackColour", "lstBackColour", "lstForeColour", "txtBackColour",
                                    "txtForeColour", "prbBackColour", "prbForeColour"};

} // namespace

ThemeTab::ThemeTab(ThemeService& themes, Desktop& desktop, QWidget* parent)
    : QWidget(parent)
    , m_themeService(themes)
    , m_desktop(desktop)
{
    QWidget* page = this;
    auto* grid = new QGridLayout(page);
    for (int i = 0; i < 7; ++i) {
        Swatch& entry = m_swatches[i];
        entry.label = new QLabel(page);
        entry.swatch = new ColourSwatch(m_themeService, page);
        entry.swatch->setObjectName(QLatin1String(SwatchNames[i]));
        entry.label->setBuddy(entry.swatch);
        grid->addWidget(entry.label, i, 0);
        grid->addWidget(entry.swatch, i, 1);
        connect(entry.swatch, &QPushButton::clicked, this, [this, i] { pickColour(m_swatches[i].swatch); });
    }
    lblScroll = makeControl<QLabel>(page, "lblScroll");
    cmbScroll = makeControl<QComboBox>(page, "cmbScroll");
    cmbScroll->addItems(QStringList(3, QString()));
    lblTab = makeControl<QLabel>(page, "lblTab");
    cmbTab = makeControl<QComboBox>(page, "cmbTab");
    cmbTab->addItems(QStringList(2, QString()));
    lblSaved = makeControl<QLabel>(page, "lblSaved");
    cmbThemes = makeControl<QComboBox>(page, "cmbThemes");
    cmdSave = makeControl<QPushButton>(page, "cmdSave");
    cmdRemove = makeControl<QPushButton>(page, "cmdRemove");
    grid->addWidget(lblScroll, 7, 0);
    grid->addWidget(cmbScroll, 7, 1);
    grid->addWidget(lblTab, 8, 0);
    grid->addWidget(cmbTab, 8, 1);
    grid->addWidget(lblSaved, 9, 0);
    grid->addWidget(cmbThemes, 9, 1);
    auto* themeButtons = new QHBoxLayout;
    themeButtons->addWidget(cmdSave);
    themeButtons->addWidget(cmdRemove);
    themeButtons->addStretch();
    grid->addLayout(themeButtons, 10, 1);
    grid->setRowStretch(11, 1);
    grid->setColumnStretch(1, 1);

    connect(cmbScroll, &QComboBox::currentIndexChanged, this, &ThemeTab::applyLive);
    connect(cmbTab, &QComboBox::currentIndexChanged, this, &ThemeTab::applyLive);
    connect(cmbThemes, &QComboBox::activated, this, &ThemeTab::chooseTheme);
    connect(cmdSave, &QPushButton::clicked, this, &ThemeTab::saveThemeAsked);
    connect(cmdRemove, &QPushButton::clicked, this, &ThemeTab::removeTheme);
    retranslateUi();
}

void ThemeTab::retranslateUi()
{
    const QStringList swatchLabels{tr("Form Back Colour"),       tr("List Back Colour"),
                                   tr("List Text Colour"),       tr("Text Box Back Colour"),
                                   tr("Text Box Text Colour"),   tr("Progress Bar Back Colour"),
                                   tr("Progress Bar Bar Colour")};
    for (int i = 0; i < 7; ++i)
        m_swatches[i].label->setText(swatchLabels.at(i));
    lblScroll->setText(tr("Progress Bar Type:"));
    const QStringList types{tr("Standard"), tr("Segmented"), tr("Smooth")};
    for (int i = 0; i < types.size(); ++i)
        cmbScroll->setItemText(i, types.at(i));
    lblTab->setText(tr("Tab Style:"));
    cmbTab->setItemText(0, tr("Small Tabs"));
    cmbTab->setItemText(1, tr("Large Tabs"));
    lblSaved->setText(tr("Saved Themes:"));
    cmdSave->setText(tr("Save"));
    cmdRemove->setText(tr("Remove"));
}

void ThemeTab::load()
{
    showTheme(m_themeService.applied());
    m_themes = ThemeFile::readFile(m_themeService.filePath()).value_or(ThemeFile::Themes{});
    const bool saved = ThemeFile::currentTheme(m_themes).has_value();
    fillThemes(saved ? m_themes.current : QString());
    if (saved) {
        chooseTheme(cmbThemes->currentIndex());
    } else {
        // The file gains a theme the first time the dialog opens.
        saveTheme(ThemeFile::DefaultName);
    }
    m_loaded = true;
}

QList<ThemeFile::Theme> ThemeTab::offered() const
{
    QList<ThemeFile::Theme> themes = m_themes.list;
    for (const ThemeFile::Theme& shipped : ThemeFile::shippedThemes()) {
        if (std::none_of(themes.cbegin(), themes.cend(),
                         [&shipped](const ThemeFile::Theme& theme) { return theme.name == shipped.name; }))
            themes.append(shipped);
    }
    return themes;
}

void ThemeTab::fillThemes(const QString& chosen)
{
    cmbThemes->clear();
    for (const ThemeFile::Theme& theme : offered())
        cmbThemes->addItem(theme.name);
    // The first of a repeated name, as the file reads.
    cmbThemes->setCurrentIndex(
        chosen.isEmpty() ? -1 : cmbThemes->findText(chosen, Qt::MatchExactly | Qt::MatchCaseSensitive));
    cmdRemove->setEnabled(cmbThemes->currentIndex() >= 0 && cmbThemes->currentIndex() < m_themes.list.size());
}

bool ThemeTab::save()
{
    return saveTheme(cmbThemes->currentText().isEmpty() ? ThemeFile::DefaultName : cmbThemes->currentText());
}

void ThemeTab::resetToDefaults()
{
    showTheme(ThemeFile::systemTheme());
    applyLive();
}

ThemeFile::Theme ThemeTab::shownTheme(const QString& name) const
{
    ThemeFile::Theme theme;
    theme.name = name;
    for (int i = 0; i < 7; ++i)
        theme.*SwatchFields[i] = m_swatches[i].swatch->value();
    theme.progressType = qint16(cmbScroll->currentIndex());
    theme.tabStyle = qint16(cmbTab->currentIndex());
    return theme;
}

void ThemeTab::showTheme(const ThemeFile::Theme& theme)
{
    const bool loaded = std::exchange(m_loaded, false);
    for (int i = 0; i < 7; ++i)
        m_swatches[i].swatch->setValue(theme.*SwatchFields[i]);
    // An index the lists do not have shows their first entry.
    cmbScroll->setCurrentIndex(theme.progressType >= 0 && theme.progressType <= 2 ? theme.progressType : 0);
    cmbTab->setCurrentIndex(theme.tabStyle >= 0 && theme.tabStyle <= 1 ? theme.tabStyle : 0);
    m_loaded = loaded;
}

void ThemeTab::applyLive()
{
    if (m_loaded)
        m_themeService.apply(shownTheme(cmbThemes->currentText()));
}

void ThemeTab::pickColour(ColourSwatch* swatch)
{
    if (const auto chosen = m_desktop.pickColour(this, swatch->color()))
        swatch->setValue(ThemeService::fromColor(*chosen));
    applyLive();
}

void ThemeTab::chooseTheme(int index)
{
    const QList<ThemeFile::Theme> themes = offered();
    // Only a saved theme can be removed; a shipped one is saved by OK.
    cmdRemove->setEnabled(index >= 0 && index < m_themes.list.size());
    if (index < 0 || index >= themes.size())
        return;
    showTheme(themes.at(index));
    // Shown on both windows even while the dialog is still opening.
    m_themeService.apply(shownTheme(themes.at(index).name));
}

void ThemeTab::saveThemeAsked()
{
    const auto name =
        m_desktop.inputText(this, tr("Save Theme"), tr("Please enter a name for this theme"), cmbThemes->currentText());
    if (name && !name->isEmpty())
        saveTheme(*name);
}

bool ThemeTab::saveTheme(const QString& name)
{
    ThemeFile::saveTheme(m_themes, shownTheme(name));
    fillThemes(name);
    return writeThemes();
}

void ThemeTab::removeTheme()
{
    const int index = cmbThemes->currentIndex();
    if (index < 0 || index >= m_themes.list.size())
        return;
    m_themes.list.removeAt(index);
    // The saved theme that moved into its place is shown, as a list does.
    fillThemes(m_themes.list.isEmpty() ? QString()
                                       : m_themes.list.at(std::min(index, int(m_themes.list.size()) - 1)).name);
    if (writeThemes())
        m_themeService.applyFile();
}

bool ThemeTab::writeThemes()
{
    if (ThemeFile::writeFile(m_themeService.filePath(), m_themes)) {
        emit message(QString());
        return true;
    }
    emit message(tr("The themes could not be saved to %1; the other settings are not affected.")
                     .arg(QDir::toNativeSeparators(m_themeService.filePath())));
    return false;
}
