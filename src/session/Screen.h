#pragma once

#include "books/Desk.h"
#include "session/Program.h"
#include "session/SaveWords.h"

namespace orvane {

/// One check of a save.
struct Check {
    bool failed;
    QString text;             ///< says so in a box
    Control* focus = nullptr; ///< where the user mends it
    QString title = {};       ///< of the box
};

/// One save as a screen states it; see Screen::save.
template <typename Result>
struct Save {
    Control& button;                    ///< whose press saves; pressed again, it looks up a save that was not answered
    QString action;                     ///< its name in SavedActions
    std::function<bool()> allowed = {}; ///< the checks in their order; says itself what fails
    QString question = {}, title = {};  ///< asked when all checks have passed; no question without a text
    Consent consent = Consent::Keeps;   ///< what a Yes to it does
    std::function<QString()> detail = {};      ///< whose, which document, how much: below the question
    std::function<bool()> prepare = {};        ///< what comes between the answer and the transaction; false stops
    std::function<Given<Result>(Books&)> step; ///< what is written, in one transaction
    std::function<void(const Result&)> follow; ///< once it is saved. It must live off what it is given and holds
    int trailRows = 0;                         ///< of the audit trail, that `follow` writes
    std::function<void(Refusal)> refused = {}; ///< when the step refused; unset: its words in a box
};

/// A form of the program: knows the session and the data source.
class Screen : public Form {
public:
    Screen(Program& owner, const QString& name, const QString& caption)
        : Form(owner.ui(), name, caption), program(owner), session(owner.session) {}
    void afterEvent() override { program.flushBoxes(); }
    bool Form_Unload() override;
    bool findPatient() override;

protected:
    /// How this screen takes a patient that was found for it, by his number, which stands for one picked in the
    /// screen's own way. Unset: it takes none, or none now.
    using PatientTaker = std::function<void(const QString& pno)>;
    virtual PatientTaker patientTaker() { return {}; }
    /// After a list was filled with what one patient has: takes the only entry as its user would; of several he
    /// chooses, and `nothing` is said where there is none.
    void takeOnly(ComboBox& list, const QString& nothing);

    /// The one way to save: an earlier save that was not answered is settled first, and nothing else is done then; the
    /// checks; the question; the step in its transaction; what follows. When nobody can say whether the commit came
    /// through, CommitUnknown is raised, the entry stays on the screen and is locked but for the button, whose next
    /// press looks it up. True: it was saved now.
    template <typename Result>
    bool save(const Save<Result>& wanted) {
        struct Outcome {
            std::optional<Given<Result>> given;
            QString document, token;
            double amount = 0;
        };
        const auto result = std::make_shared<Outcome>();
        return saveErased(
            {.button = wanted.button,
             .allowed = wanted.allowed,
             .question = wanted.question,
             .title = wanted.title,
             .consent = wanted.consent,
             .detail = wanted.detail,
             .prepare = wanted.prepare,
             .step = [this, &wanted, result]() -> std::optional<Refusal> {
                 const auto kept = [&](Books& books) {
                     books.expectTrail(wanted.trailRows);
                     result->token = books.token();
                     result->given.emplace(wanted.step(books));
                     result->document = books.document();
                     result->amount = books.amount();
                     return *result->given;
                 };
                 const Given<Result> given = program.desk().template save<Result>(wanted.action, kept);
                 return given ? std::nullopt : std::optional(given.refusal());
             },
             .words = [action = wanted.action, result] { return savedWords(action, result->document, result->amount); },
             .follow =
                 [this, follow = wanted.follow, result] {
                     program.followedSave = result->token;
                     follow(**result->given);
                 },
             .refused = wanted.refused});
    }

    /// Says the first check that failed and puts the focus there. True: none did.
    bool passes(std::initializer_list<Check> checks);

    /// True: the save before this one was open, and the user has been told what became of it: it was saved, and what
    /// follows a save was done; or it was not, and can be saved again; or nobody knows yet. Nothing else may be done
    /// then.
    bool settlesSave();

    Program& program;
    Session& session;

private:
    /// A save without the type of its result.
    struct AnySave {
        Control& button;
        std::function<bool()> allowed;
        QString question, title;
        Consent consent;
        std::function<QString()> detail;
        std::function<bool()> prepare;
        std::function<std::optional<Refusal>()> step;
        std::function<QString()> words; ///< what was saved
        std::function<void()> follow;
        std::function<void(Refusal)> refused;
    };
    /// A save of which nobody knows whether the database has it.
    struct OpenSave {
        CommitTicket ticket;
        std::function<QString()> words;
        std::function<void()> follow;
        QList<Control*> locked; ///< until it is known
    };

    bool saveErased(const AnySave& wanted);
    std::optional<Refusal> runStep(const AnySave& wanted);
    void keepSaved(const QString& words);
    QList<Control*> lockAllBut(const Control& button);

    std::optional<OpenSave> m_openSave;
};

} // namespace orvane
