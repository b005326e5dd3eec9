#include "app/asking/AskingFields.h"

#include "app/DateField.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>

namespace app
{

void addField(QBoxLayout* row, const QString& caption, QWidget* field)
{
    auto* label = new QLabel(caption); // a caption of our own, with its key
    label->setBuddy(field);
    row->addWidget(label);
    row->addWidget(field);
}

QComboBox* weekList(const QString& objectName)
{
    auto* list = new QComboBox;
    list->setObjectName(objectName);
    list->setAccessibleName(QStringLiteral("Semaine"));
    list->addItems({QStringLiteral("Toute semaine"), QStringLiteral("Semaine A"),
                    QStringLiteral("Semaine B")});
    return list;
}

DateField* dateField(const QString& objectName, const QString& accessibleName)
{
    auto* field = new DateField;
    field->setObjectName(objectName);
    field->setAccessibleName(accessibleName);
    field->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    field->setCalendarPopup(true);
    field->setDate(QDate::currentDate());
    return field;
}

} // namespace app
