#pragma once

#include "platform/Availability.h"

#include <QAbstractListModel>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace norvin {

/// What of this desktop the program can use, what to do about the rest, and the buttons that do it. Main
/// thread only.
class TrackingHealthModel final : public QAbstractListModel {
    Q_OBJECT
    /// How many checks fail that the program is not whole without.
    Q_PROPERTY(int problemCount READ problemCount NOTIFY problemCountChanged)
    /// What came of the last action, in the user's language; empty for nothing worth saying.
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
    /// The question of questionAsked(), in the user's language, and what its yes is called; empty before.
    Q_PROPERTY(QString questionTitle READ questionTitle NOTIFY questionChanged)
    Q_PROPERTY(QString questionMessage READ questionMessage NOTIFY questionChanged)
    Q_PROPERTY(QString questionAnswer READ questionAnswer NOTIFY questionChanged)
public:
    enum Role {
        CapabilityRole = Qt::UserRole + 1, ///< what it is, in the user's language
        IsAvailableRole,                   ///< boolean
        ReasonRole,                        ///< why not, in the user's language; empty while available
        RemedyRole,                        ///< what to do, in the user's language; empty while available
        DetailRole,                        ///< technical detail, may be empty
        ActionsRole,                       ///< labels of what act() does, in the user's language
        IsOptionalRole, ///< boolean: not every desktop has it, so no fault where it is missing
    };
    /// A sentence about what an action came to.
    struct Notice {
        /// Localisation key; empty for nothing to say.
        QString textKey;
        /// File or address that the sentence names with %1; may be empty.
        QString detail;
    };
    /// What is asked before an action that cannot be taken back.
    struct Question {
        QString titleKey;
        QString messageKey;
    };
    struct Action {
        QString labelKey;
        std::function<Notice()> run;
        std::optional<Question> question = {};
    };
    struct Check {
        /// Localisation key ("health_frontmost_application").
        QString capabilityKey;
        std::function<Availability()> ask;
        /// What the texts of the check and of its actions name with %1 (a browser); empty for nothing.
        QString subject = {};
        /// What can be done, as things are now; may be empty.
        std::function<QList<Action>()> actions = {};
        /// Whether not every desktop has it, so that it is no fault where it is missing.
        bool isOptional = false;
    };

    explicit TrackingHealthModel(QList<Check> checks, QObject* parent = nullptr);
    ~TrackingHealthModel() override;

    /// Checks that come and go with what runs on the desktop; from the next refresh() on they stand at that
    /// row, among the others. To be called once. @param row 0 to the number of the others
    void setPassingChecks(int row, std::function<QList<Check>()> passingChecks);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
    [[nodiscard]] int problemCount() const { return m_problemCount; }
    [[nodiscard]] QString notice() const;
    [[nodiscard]] QString questionTitle() const;
    [[nodiscard]] QString questionMessage() const;
    [[nodiscard]] QString questionAnswer() const;

    /// Localisation key of a check; by row.
    [[nodiscard]] const QString& capabilityKey(int row) const { return m_rows.at(row).check.capabilityKey; }
    /// What the check is about; empty for nothing in particular.
    [[nodiscard]] const QString& subject(int row) const { return m_rows.at(row).check.subject; }
    [[nodiscard]] const Availability& availability(int row) const { return m_rows.at(row).answer; }
    [[nodiscard]] bool isOptional(int row) const { return m_rows.at(row).check.isOptional; }

    /// Asks every check again.
    Q_INVOKABLE void refresh();
    /// Does the action at that place of the row's list, and asks every check again. An action with a question
    /// is not done but asked about.
    Q_INVOKABLE void act(int row, int action);
    /// Does what was asked about last, unless another action came between.
    Q_INVOKABLE void confirm();
    void setNotice(Notice notice);
    Q_INVOKABLE void dismissNotice();
    /// Gives the texts anew, for another language.
    void retranslate();

Q_SIGNALS:
    void problemCountChanged();
    void noticeChanged();
    void questionChanged();
    /// The user has to answer, with confirm() or by leaving it.
    void questionAsked();

private:
    struct Row {
        Check check;
        Availability answer = Availability::available();
        QList<Action> actions;
    };

    void replacePassingChecks();
    void run(const Action& action);

    QList<Row> m_rows;
    qsizetype m_passingRow = 0;
    qsizetype m_passingCount = 0;
    std::function<QList<Check>()> m_passingChecks;
    int m_problemCount = 0;
    Notice m_notice;
    // The rows may be others by the time of the answer.
    std::optional<Action> m_asked;
    QString m_askedSubject;
};

} // namespace norvin
