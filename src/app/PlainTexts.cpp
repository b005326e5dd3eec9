#include "app/PlainTexts.h"

#include <QLabel>
#include <QMessageBox>
#include <QTextDocument>

namespace app
{

QLabel* plainLabel(const QString& text)
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

QString plainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

void setPlainToolTip(QWidget* widget, const QString& text)
{
    if (widget->accessibleDescription() != text) {
        widget->setToolTip(plainToolTip(text));
        widget->setAccessibleDescription(text);
    }
}

void showPlainly(QMessageBox& box)
{
    box.setTextFormat(Qt::PlainText);
    for (auto* label : box.findChildren<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
    }
}

} // namespace app
