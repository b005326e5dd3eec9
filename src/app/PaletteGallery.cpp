#include "app/PaletteGallery.h"

#include "app/PaletteSample.h"
#include "app/PlainTexts.h"
#include "app/ScreenFit.h"
#include "appearance/Palette.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

namespace app
{
namespace
{

constexpr int kPathRole = Qt::UserRole;
constexpr int kColumns = 2;
constexpr QSize kItemMargin(18, 34); // around a sample, with room for its name
constexpr int kListEdge = 60;        // its scroll bar and the dialog's margins
constexpr int kGalleryHeight = 540;
constexpr QColor kEdge(170, 178, 192);

QString nameOf(const QString& path)
{
    return path.isEmpty() ? QStringLiteral("Défaut") : appearance::Palette::Nom_Palette(path);
}

/// The sample in a frame, a stronger one where it is selected; its colours stay what they are.
QIcon framed(const QPixmap& sample, const QPalette& palette)
{
    const auto withFrame = [&sample](const QColor& color, int width) {
        QPixmap picture = sample;
        QPainter painter(&picture);
        painter.setPen(QPen(color, 2 * width)); // half of it lies outside
        painter.drawRect(QRectF({0, 0}, sample.deviceIndependentSize()));
        return picture;
    };
    QIcon icon(withFrame(kEdge, 1));
    const QPixmap selected = withFrame(palette.color(QPalette::Highlight), 4);
    icon.addPixmap(selected, QIcon::Selected);
    return icon;
}

bool isSameFile(const QString& one, const QString& other)
{
    return one.isEmpty() == other.isEmpty() &&
           (one.isEmpty() || QFileInfo(QDir::fromNativeSeparators(one)) ==
                                 QFileInfo(QDir::fromNativeSeparators(other)));
}

} // namespace

PaletteGallery::PaletteGallery(Offer offer, QWidget* parent)
    : QDialog(parent), m_offer(std::move(offer)), m_list(new QListWidget)
{
    setObjectName(QStringLiteral("PaletteGallery"));
    setWindowTitle(QStringLiteral("Changer de palette"));
    m_list->setObjectName(QStringLiteral("Palettes"));
    m_list->setAccessibleName(QStringLiteral("Palettes"));
    m_list->setViewMode(QListView::IconMode);
    m_list->setIconSize(kSampleSize);
    m_list->setGridSize(kSampleSize + kItemMargin);
    m_list->setMovement(QListView::Static);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    addFiles();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("Choisir"));
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("ChoosePalette"));
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Annuler"));
    auto* other = buttons->addButton(QStringLiteral("&Autre…"), QDialogButtonBox::ActionRole);
    other->setObjectName(QStringLiteral("OtherPalette"));
    other->setToolTip(QStringLiteral("Choisir un fichier de palette ailleurs"));
    other->setAutoDefault(false);
    for (QAbstractButton* button : buttons->buttons()) {
        button->setIcon({}); // as in the rest of the window
    }
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { choose(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(other, &QPushButton::clicked, this, [this] { chooseOther(); });
    connect(m_list, &QListWidget::itemDoubleClicked, this, [this] { choose(); });

    auto* column = new QVBoxLayout(this);
    auto* hint = plainLabel(QStringLiteral("Les couleurs des salles, sur un exemple de plan :"));
    hint->setBuddy(m_list);
    column->addWidget(hint);
    column->addWidget(m_list, 1);
    column->addWidget(buttons);
    resize(fittingScreen(
        {kColumns * (kSampleSize.width() + kItemMargin.width()) + kListEdge, kGalleryHeight},
        *this));
    m_list->setFocus();
}

/// "Défaut" first, the files by name, then the palette in use where it lies elsewhere.
void PaletteGallery::addFiles()
{
    plan::RowColors random;
    random.fillRandomly();
    add({}, random);
    const QFileInfoList files =
        QDir(m_offer.folder)
            .entryInfoList({QStringLiteral("*.mpl")}, QDir::Files, QDir::Name | QDir::LocaleAware);
    bool isListed = m_offer.current.isEmpty();
    const auto addFile = [this](const QString& path) {
        plan::RowColors colors;
        if (appearance::Palette::fill(colors, path)) {
            add(path, colors);
        }
    };
    for (const QFileInfo& file : files) {
        addFile(file.filePath());
        isListed = isListed || isSameFile(file.filePath(), m_offer.current);
    }
    if (!isListed) {
        addFile(m_offer.current);
    }
}

void PaletteGallery::add(const QString& path, const plan::RowColors& colors)
{
    const bool isCurrent = isSameFile(path, m_offer.current);
    const QString name = nameOf(path);
    auto* item =
        new QListWidgetItem(framed(paletteSample(colors, devicePixelRatioF()), palette()),
                            isCurrent ? name + QStringLiteral(" (actuelle)") : name, m_list);
    item->setData(kPathRole, path);
    item->setToolTip(plainToolTip(
        path.isEmpty() ? QStringLiteral("Des couleurs tirées au hasard à chaque démarrage")
                       : QDir::toNativeSeparators(path)));
    item->setData(Qt::AccessibleTextRole, isCurrent
                                              ? QStringLiteral("Palette %1, actuelle").arg(name)
                                              : QStringLiteral("Palette %1").arg(name));
    if (isCurrent) {
        m_list->setCurrentItem(item);
    }
}

void PaletteGallery::choose()
{
    if (const QListWidgetItem* item = m_list->currentItem()) {
        m_chosen = item->data(kPathRole).toString();
        accept();
    }
}

void PaletteGallery::chooseOther()
{
    const QString file = m_offer.chooseOther(this);
    if (!file.isEmpty()) {
        m_chosen = file;
        accept();
    }
}

} // namespace app
