#pragma once

#include "db/Database.h"
#include "plan/AbsenceSource.h"
#include "plan/Marqueur.h"

#include <QString>
#include <QStringList>

namespace absences
{

/// The two tables of absences, the only ones that the program writes: `abscence` holds the classes
/// that were absent, `etud_abs` the students. A record is about one séance, found again by class,
/// date and start time (and by name in `etud_abs`).
///
/// Values stand between single quotes as they are, unless quotes are doubled (the setting
/// "Apostrophes"): a class name that holds an apostrophe is refused by the database, and nothing is
/// written. Where the database does not refuse it, no record of another class is removed.
class AbsenceRecords : public plan::AbsenceSource
{
public:
    /// `database` outlives the records.
    explicit AbsenceRecords(db::Database& database) : m_database(database) {}

    [[nodiscard]] bool Existe_AbsClasse(const plan::Marqueur& marker,
                                        const QString& className) override;
    [[nodiscard]] bool Existe_AbsEtud(const plan::Marqueur& marker, const QString& className,
                                      const QString& name) override;

    /// Removes the class's record of this séance, or adds one when there is none, and notes in
    /// `marker.AbsClasse` whether it added one. Of several records the first found is removed.
    /// Error: any database error; then the table holds the whole record or nothing of it.
    void Basculer_AbsClasse(plan::Marqueur& marker, const QString& className);

    /// The same in the table of students, noted in `marker.AbsEtud`.
    /// Errors: TypeMismatch for a record to be added when the séance's start is no time of day,
    /// with nothing written; any database error as above.
    void Basculer_AbsEtud(plan::Marqueur& marker, const QString& className, const QString& name);

    /// What the two tests send.
    [[nodiscard]] QString classSearch(const plan::Marqueur& marker, const QString& className) const;
    [[nodiscard]] QString studentSearch(const plan::Marqueur& marker, const QString& className,
                                        const QString& name) const;

    /// How many toggles there have been: what was known of the tables before counts no more.
    [[nodiscard]] int toggleCount() const { return m_toggles; }

private:
    [[nodiscard]] bool holds(const QStringList& names) const;
    [[nodiscard]] bool exists(const QString& search);
    /// What a removal is about.
    struct Removal {
        QString search;
        QString record;     ///< for the user
        QString className;  ///< of the gesture
        bool isHeld = true; ///< the search asks about these names and no others
    };
    /// Removes the first record that the search finds. False when there is none, also when another
    /// program has removed it meanwhile. Error: StatementRefused, too, for a record of a class that
    /// is not the gesture's.
    [[nodiscard]] bool removeFirst(const Removal& removal);
    /// `blanks`: those before the condition on the name.
    [[nodiscard]] QString studentSearch(const plan::Marqueur& marker, const QString& className,
                                        const QString& blanks, const QString& name) const;
    void addClass(const plan::Marqueur& marker, const QString& className);
    void addStudent(const plan::Marqueur& marker, const QString& className, const QString& name);

    db::Database& m_database;
    int m_toggles = 0;
};

/// Time of day at which a séance ends, as "hh:mm"; past midnight it starts from 00:00 again.
/// Error: TypeMismatch when `start` is no time of day.
[[nodiscard]] QString endTime(const QString& start, int minutes);

} // namespace absences
