#pragma once

#include "data/types/Value.h"
#include "stats/BoundaryTraits.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Which calls a run counts.
struct CallSelection {
    std::string where;                 ///< condition of the dialect; empty: every call of the project
    bool withoutUnplacedCalls = false; ///< leaves out mobile callers and those without a usable number
};

/// An area as the calls name it; nothing for a code whose area is null.
using AreaName = std::optional<std::string>;

struct CallCount {
    AreaName area;
    Value answerInd;
    std::int64_t calls = 0;
};

struct MoneySum {
    AreaName area;
    Value sum; ///< never negative
};

struct CallerCount {
    AreaName area;
    std::int64_t callers = 0;
};

/// The figures of one side-panel row.
struct SpecialRowFigures {
    std::int64_t totalCalls = 0;
    std::int64_t answered = 0;
    std::int64_t ineffective = 0;
    Money cost;
    Money revenue; ///< never negative
    std::int64_t engaged = 0;
    std::int64_t rtnr = 0;
    std::int64_t other = 0;
};

enum class CallMoney { Cost, Revenue };
enum class CallerKind { Answered, Lost };

/// What the statistics need of the calls of gdbProject, by the areas of one boundary.
///
/// The three make… operations leave their result behind as the tables SelectedData, TblAnsweredCallers and
/// TblLostCallers of the project, which other reports read; the rest reads from them. Failures are logged under
/// gsCurrentProc and passed over: what could not be read is missing from the result. Main thread only.
class FigureSource {
public:
    virtual ~FigureSource() = default;

    virtual void makeSelectedData(const CallSelection& selection) = 0;
    /// Callers by area: Answered, who were answered at least once within the selection; Lost, who were unanswered
    /// within it and never answered at any time.
    virtual void makeCallers(CallerKind kind, const std::string& where) = 0;

    /// In the order of the areas, then of AnswerInd as text. An area with several AnswerInd has several entries.
    virtual std::vector<CallCount> callsByArea() = 0;
    virtual std::vector<MoneySum> moneyByArea(CallMoney money) = 0;
    /// In the order of the areas.
    virtual std::vector<CallerCount> callersByArea(CallerKind kind) = 0;

    /// Over the selected calls whose area fits `test`, a condition without its left side (" = 'VOIP'").
    virtual SpecialRowFigures specialRow(std::string_view test) = 0;
    /// Callers of the areas MOBILE and VOIP.
    virtual std::vector<CallerCount> mobileAndVoipCallers(CallerKind kind) = 0;
};

/// The source that the program uses for a boundary, as figureEngine() says: a scan of the calls in memory, statements
/// for what it cannot do, or one of the two alone.
std::unique_ptr<FigureSource> newFigureSource(const BoundaryTraits& boundary);
