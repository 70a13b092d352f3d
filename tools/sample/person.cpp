// SPDX-License-Identifier: Apache-2.0
#include "sample/household.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kelx::tools {

namespace {

enum Marital { Single = 1, Married, Union, Separated, Widowed };
enum Activity { Working = 1, Seeking, Student, Homemaker, Retired, OtherActivity };

int maritalOf(const Person& person, Random& random) {
    if (person.partnered)
        return random.chance(person.age < 35 ? 0.45 : 0.2) ? Union : Married;
    const double old = std::clamp((person.age - 45) / 45.0, 0.0, 1.0);
    const bool everPartnered = person.relation == Parent ||
                               (person.age >= 20 && random.chance(0.1 + 0.75 * old)) ||
                               (person.relation == Head && random.chance(0.35));
    if (!everPartnered)
        return Single;
    return random.chance(0.15 + 0.8 * old) ? Widowed : Separated;
}

/// Completed years of schooling: as much as the age allows, later generations more.
int educationOf(const Person& person, double urban, Random& random) {
    const int possible = std::clamp(person.age - 6, 0, 17);
    const double generation = std::max(0, person.age - 22) * (person.sex == 2 ? 0.145 : 0.115);
    const double aim = 11.2 - generation + 3.0 * urban + 3.2 * random.normal();
    return std::clamp(static_cast<int>(std::lround(aim)), 0, possible);
}

bool readsAndWrites(const Person& person, int years, Random& random) {
    if (years >= 2)
        return random.chance(0.985);
    return person.age >= 7 && random.chance(person.age < 15 ? 0.55 : 0.22);
}

int activityOf(const Person& person, int years, Random& random) {
    const bool woman = person.sex == 2;
    if (person.age < 15)
        return 1 + random.pick(std::array{3, 0, 91, 3, 0, 3});
    if (person.age < 20)
        return 1 + (woman ? random.pick(std::array{17, 5, 62, 12, 0, 4})
                          : random.pick(std::array{27, 8, 60, 1, 0, 4}));
    if (person.age < 26 && years >= 11 && random.chance(0.3))
        return Student;
    if (person.age < 60)
        return 1 + (woman ? random.pick(std::array{54, 6, 1, 35, 1, 3})
                          : random.pick(std::array{86, 7, 1, 1, 1, 4}));
    if (person.age < 70)
        return 1 + (woman ? random.pick(std::array{25, 1, 0, 42, 26, 6})
                          : random.pick(std::array{52, 2, 0, 2, 38, 6}));
    return 1 + (woman ? random.pick(std::array{6, 0, 0, 34, 46, 14})
                      : random.pick(std::array{17, 0, 0, 2, 69, 12}));
}

int occupationOf(int years, Random& random) {
    if (years >= 14)
        return 1 + random.pick(std::array{14, 44, 16, 12, 8, 2, 2, 1, 1});
    if (years >= 9)
        return 1 + random.pick(std::array{3, 5, 12, 17, 25, 6, 13, 10, 9});
    return 1 + random.pick(std::array{1, 0, 1, 2, 17, 32, 15, 8, 24});
}

/// Monthly, lognormal, rounded as people tell it.
double incomeOf(const Person& person, int years, double urban, Random& random) {
    const int experience = std::clamp(person.age - 6 - years, 0, 45);
    const double logarithm = 5.9 + 0.085 * years + 0.03 * experience -
                             0.00042 * experience * experience + 0.2 * urban -
                             (person.sex == 2 ? 0.16 : 0) + 0.55 * random.normal();
    return std::max(1.0, std::round(std::exp(logarithm) / 10)) * 10;
}

int birthProvinceOf(const District& district, int provinces, Random& random) {
    if (random.chance(0.005))
        return -2;
    if (random.chance(0.02))
        return -1;
    const bool moved = random.chance(0.10 + 0.2 * district.urban);
    return moved ? random.below(provinces) : district.province;
}

} // namespace

Answers answersOf(const Person& person, const District& district, int provinces, Random random) {
    const auto told = [&random](int value, int missing, double share) {
        return random.chance(share) ? missing : value;
    };
    const int age = person.age;
    Answers answers;
    answers.age = told(age, codes::ageMissing, 0.006);
    answers.marital = age < 15 ? codes::shortNotApplicable
                               : told(maritalOf(person, random), codes::shortMissing, 0.008);
    const int years = educationOf(person, district.urban, random);
    answers.education = age < 5 ? codes::longNotApplicable : told(years, codes::longMissing, 0.01);
    answers.literate = age < 5 ? codes::shortNotApplicable
                               : told(readsAndWrites(person, years, random) ? 1 : 2,
                                      codes::shortMissing, 0.007);
    const int activity = age < 10 ? 0 : activityOf(person, years, random);
    answers.activity =
        age < 10 ? codes::shortNotApplicable : told(activity, codes::shortMissing, 0.009);
    // Who did not tell an activity was not asked what follows from it.
    const bool works = answers.activity == Working;
    answers.occupation = works ? told(occupationOf(years, random), codes::longMissing, 0.02)
                               : codes::longNotApplicable;
    answers.income = codes::incomeNotApplicable;
    if (works)
        answers.income = random.chance(0.04) ? std::numeric_limits<double>::quiet_NaN()
                                             : incomeOf(person, years, district.urban, random);
    answers.birthProvince = birthProvinceOf(district, provinces, random);
    return answers;
}

} // namespace kelx::tools
