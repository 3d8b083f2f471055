#pragma once

#include "stats/AreasOfCodes.h"
#include "stats/StatementFigures.h"
#include "stats/calls/CallColumns.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// Figures by a scan of the calls in memory: the same rows as by statements, in hundredths of the time. A selection
/// that does not fit columns goes to statements as a whole; where figureEngine() is Scan it is an error that is logged,
/// and has no rows.
///
/// Of texts that compare equal, such as two spellings of an area, it may show another one than the statements. The
/// working tables are left behind as views.
class ScanFigures : public FigureSource {
public:
    /// Over projectCalls(), fetched by makeSelectedData(). `boundary` must outlive the object.
    explicit ScanFigures(const BoundaryTraits& boundary);
    /// `columns` are those of gdbProject.
    ScanFigures(const BoundaryTraits& boundary, std::shared_ptr<const CallColumns> columns);

    void makeSelectedData(const CallSelection& selection) override;
    void makeCallers(CallerKind kind, const std::string& where) override;
    std::vector<CallCount> callsByArea() override;
    std::vector<MoneySum> moneyByArea(CallMoney money) override;
    std::vector<CallerCount> callersByArea(CallerKind kind) override;
    SpecialRowFigures specialRow(std::string_view test) override;
    std::vector<CallerCount> mobileAndVoipCallers(CallerKind kind) override;

    /// Whether the selected calls, or the callers, came from a scan.
    bool selectedByScan() const { return selectedBy_ == Origin::Scan; }
    bool callersByScan(CallerKind kind) const { return callersOf(kind).origin == Origin::Scan; }

private:
    /// Whose the result of a make… operation is. Before the first of them it is what an earlier run left behind.
    enum class Origin { Statements, Scan, Nobody };

    /// Nothing where the condition does not fit; `refusal_` then says why.
    std::optional<CallScan> scan(const std::string& where);
    CallScan scanOrThrow(const std::string& where);
    /// Whose work it is what a scan cannot do. Logs it where statements must not.
    Origin withoutScan() const;

    /// What statements give where it is theirs, else nothing.
    template<typename Ask>
    static auto ofOthers(Origin origin, Ask ask) -> decltype(ask());

    struct Callers {
        Origin origin = Origin::Statements;
        CallScan::Callers counts;
    };
    Callers& callersOf(CallerKind kind) { return kind == CallerKind::Answered ? answered_ : lost_; }
    const Callers& callersOf(CallerKind kind) const { return kind == CallerKind::Answered ? answered_ : lost_; }
    void findCodesLeftOut();

    std::string area_;
    bool ofProject_;
    std::shared_ptr<const CallColumns> columns_;
    StatementFigures statements_;
    std::optional<AreasOfCodes> areas_;
    CallSelection selection_;
    Origin selectedBy_ = Origin::Statements;
    CallScan selected_;
    std::vector<bool> leftOut_; ///< by id of the code; empty: none
    Callers answered_, lost_;
    std::string refusal_;
};
