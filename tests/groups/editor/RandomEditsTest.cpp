#include "tests/groups/editor/EditorTest.h"

#include <algorithm>
#include <map>
#include <random>
#include <set>

namespace {

using enum GroupAction;

/// Groups as anyone would keep them: the group of each area, and the names.
struct Model {
    std::map<std::string, std::string> groupOf;
    std::set<std::string> names;

    Rows members() const {
        Rows rows;
        for (const auto& [area, group] : groupOf)
            rows.push_back(area + "|" + group);
        return rows;
    }
    void erase(const std::string& group) {
        names.erase(group);
        std::erase_if(groupOf, [&](const auto& member) { return member.second == group; });
    }
    /// By one answer for an area of another group.
    void change(GroupAction action, const std::string& area, const std::string& group, bool override) {
        const auto member = groupOf.find(area);
        if (member != groupOf.end() && member->second != group && !override)
            return;
        if (action == Add)
            groupOf[area] = group;
        else if (member != groupOf.end())
            groupOf.erase(member);
    }
    /// Group, left and right edge of every group with a place on the map.
    Rows shapes() const {
        std::map<std::string, std::pair<int, int>> edges;
        for (const auto& [area, group] : groupOf) {
            if (area.size() > 1 && area != "Mobile")
                continue;
            const int left = area == "Mobile" ? 700 : (area[0] - 'A') * 100;
            const int right = area == "Mobile" ? 710 : left + 100;
            auto& [low, high] = edges.try_emplace(group, left, right).first->second;
            low = std::min(low, left);
            high = std::max(high, right);
        }
        Rows rows;
        for (const auto& [group, edge] : edges)
            rows.push_back(group + "|" + std::to_string(edge.first) + "|" + std::to_string(edge.second));
        return rows;
    }
};

class RandomEdits : public EditorTest, public testing::WithParamInterface<unsigned> {
protected:
    RandomEdits() : random_(GetParam()) {
        installation_.setUpAs("2", false);
        enter(2);
    }

    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }
    std::string anArea() {
        const Rows areas{"A", "B", "C", "D", "E", "F", "Mobile", "International", "VOIP", "Other"};
        return areas[static_cast<std::size_t>(below(static_cast<int>(areas.size())))];
    }
    bool selectAny() {
        if (editor_->groups().empty())
            return false;
        editor_->select(below(static_cast<int>(editor_->groups().size())));
        return true;
    }

    void addGroup() {
        const std::string name(1, static_cast<char>('P' + below(5)));
        prompts_.entries = {name};
        EXPECT_EQ(editor_->addGroup(), model_.names.insert(name).second);
    }
    void deleteGroup() {
        if (!selectAny())
            return;
        model_.erase(editor_->selectedName());
        prompts_.answers = {PromptAnswer::Yes};
        editor_->deleteGroup();
    }
    void changeOne() {
        if (!selectAny())
            return;
        const auto action = below(3) == 0 ? Remove : Add;
        const auto answer = static_cast<MembershipAnswer>(1 + below(4));
        const std::string area = anArea();
        model_.change(action, area, editor_->selectedName(), answer <= MembershipAnswer::YesToAll);
        editor_->changeArea(action, area, answering({answer}));
    }
    void changeMany() {
        if (!selectAny())
            return;
        const auto action = below(3) == 0 ? Remove : Add;
        const auto answer = below(2) == 0 ? MembershipAnswer::YesToAll : MembershipAnswer::NoToAll;
        std::vector<long> drawn;
        for (long region = 1; region <= mobile; ++region) {
            if (below(2) == 0)
                drawn.push_back(region);
        }
        const Rows areas = editor_->areasDrawn(action, drawn);
        for (const std::string& area : areas)
            model_.change(action, area, editor_->selectedName(), answer == MembershipAnswer::YesToAll);
        editor_->changeAreas(action, areas, answering({answer}));
        EXPECT_LE(questions_.size(), 1U);
    }
    void cancel() {
        prompts_.options = {1};
        EXPECT_EQ(editor_->cancel(), EditorStep::Rebuild);
        prompts_.options.clear();
        model_ = saved_;
    }
    void save() {
        prompts_.answers = {PromptAnswer::Yes};
        EXPECT_TRUE(editor_->save({}));
        saved_ = model_;
        EXPECT_EQ(StoreInstallation::masterMembers(), model_.members());
        EXPECT_EQ(masterNames(), Rows(model_.names.begin(), model_.names.end()));
        EXPECT_EQ(StoreInstallation::projectMembers(), model_.members());
        for (const std::string& shape : model_.shapes())
            EXPECT_TRUE(std::ranges::count(StoreInstallation::shapesIn(customerGroupsDatabase()), shape) == 1) << shape;
    }
    void leaveAndEnter() {
        enter(2);
        model_ = saved_;
    }
    void step() {
        const int which = below(20);
        if (which < 5)
            addGroup();
        else if (which < 6)
            deleteGroup();
        else if (which < 14)
            changeOne();
        else if (which < 16)
            changeMany();
        else if (which < 17)
            cancel();
        else if (which < 18)
            leaveAndEnter();
        else
            save();
    }

    std::mt19937 random_;
    Model model_, saved_;
};

TEST_P(RandomEdits, KeepWhatAnyoneWouldKeep) {
    for (int at = 0; at < 60 && !HasFailure(); ++at) {
        step();
        EXPECT_EQ(members(), model_.members()) << "step " << at;
        Rows listed = names();
        std::ranges::sort(listed);
        EXPECT_EQ(listed, Rows(model_.names.begin(), model_.names.end())) << "step " << at;
        const bool asSaved = model_.groupOf == saved_.groupOf && model_.names == saved_.names;
        EXPECT_TRUE(asSaved || (editor_->Unsaved && editor_->canSave())) << "step " << at;
    }
    save();
    leaveAndEnter();
    EXPECT_EQ(members(), model_.members());
    EXPECT_EQ(installation_.logLines(), Rows{});
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEdits, testing::Range(1U, 9U));

} // namespace
