// SPDX-License-Identifier: Apache-2.0
// A household of the made-up country and who lives in it.
#pragma once

#include "sample/country.h"
#include "sample/random.h"

#include <cstdint>
#include <vector>

namespace kelx::tools {

/// Codes that stand for no answer and for no question, as the dictionary tells them.
namespace codes {
constexpr int ageMissing = 99;
constexpr int shortNotApplicable = 8, shortMissing = 9;
constexpr int longNotApplicable = 98, longMissing = 99;
constexpr double incomeNotApplicable = -1;
} // namespace codes

enum Relation { Head = 1, Spouse, Child, Grandchild, Parent, OtherRelative, NotRelated };
enum HouseholdType { OnePerson = 1, Couple, CoupleWithChildren, OneParent, Extended, Unrelated };

/// What decides the rest, as it really is.
struct Person {
    int sex = 1;
    int age = 0; ///< 0 to 98
    int relation = Head;
    bool partnered = false;
};

/// A person's answers: codes, some of them missing or not applicable.
struct Answers {
    int age = 0, marital = 0, education = 0, literate = 0, activity = 0, occupation = 0;
    double income = 0;     ///< NaN where it was not told
    int birthProvince = 0; ///< index; -1 abroad, -2 not told
};

struct Emigrant {
    int sex = 1, age = 0, year = 0, destination = 1; ///< year 0: not told
};

struct Household {
    int type = OnePerson, tenure = 1, water = 1, rooms = 1;
    int electricity = 1; ///< -1: not told
    double weight = 1;
    std::vector<Person> persons; ///< the head first
    std::vector<Emigrant> emigrants;
};

/// Fills the household, at most so many persons.
void makeHousehold(Household& household, const District& district, std::uint64_t limit,
                   Random random);
Answers answersOf(const Person& person, const District& district, int provinces, Random random);

} // namespace kelx::tools
