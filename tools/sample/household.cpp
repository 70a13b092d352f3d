// SPDX-License-Identifier: Apache-2.0
#include "sample/household.h"

#include <algorithm>
#include <cmath>

namespace kelx::tools {

namespace {

constexpr int oldest = 98;

class Composer {
public:
    Composer(Household& household, Random& random) : household_(household), random_(random) {}

    void compose() {
        household_.persons.clear();
        household_.type = 1 + random_.pick(std::array{8, 9, 46, 13, 19, 5});
        addHead();
        switch (household_.type) {
        case Couple:
            addSpouse();
            break;
        case CoupleWithChildren:
            addSpouse();
            addChildren(random_.between(1, 6), true);
            break;
        case OneParent:
            addChildren(random_.between(1, 4), true);
            break;
        case Extended:
            if (random_.chance(0.7))
                addSpouse();
            addChildren(random_.between(0, 4), false);
            addRelatives(random_.between(1, 3));
            break;
        case Unrelated:
            for (int left = random_.between(1, 5); left > 0; --left)
                add(1 + random_.below(2), random_.between(16, 60), NotRelated);
            break;
        default:
            break;
        }
    }

private:
    Person& add(int sex, int age, int relation) {
        return household_.persons.emplace_back(
            Person{sex, std::clamp(age, 0, oldest), relation, false});
    }

    void addHead() {
        const int type = household_.type;
        const double woman = type == OneParent ? 0.78 : type == OnePerson ? 0.5 : 0.22;
        int age = 18 + random_.below(14) + random_.below(24);
        if (type == OnePerson || type == Couple)
            age = random_.chance(0.5) ? random_.between(19, 40) : random_.between(40, 88);
        else if (type == Extended)
            age = 24 + random_.below(25) + random_.below(30);
        add(random_.chance(woman) ? 2 : 1, age, Head);
    }

    void addSpouse() {
        Person& head = household_.persons.front();
        head.partnered = true;
        const int older = head.sex == 1 ? -random_.between(-3, 8) : random_.between(-3, 8);
        const int sex = 3 - head.sex;
        const int age = std::max(17, head.age + older);
        add(sex, age, Spouse).partnered = true;
    }

    /// Age of the mother or, where she isn't there, about what it would be.
    int motherAge() const {
        for (const Person& person : household_.persons)
            if (person.sex == 2 && person.relation <= Spouse)
                return person.age;
        return household_.persons.front().age - 3;
    }

    void addChildren(int births, bool atLeastOne) {
        const int mother = std::max(motherAge(), 17);
        bool any = false;
        for (int i = 0; i < births; ++i) {
            const int age = mother - (16 + random_.below(13) + random_.below(14));
            const bool leftHome = age > 18 && random_.chance(age > 27 ? 0.85 : 0.25);
            if (age < 0 || leftHome)
                continue;
            add(1 + (random_.chance(0.49) ? 1 : 0), age, Child);
            any = true;
        }
        if (!any && atLeastOne)
            add(1 + random_.below(2), random_.below(std::clamp(mother - 16, 1, 18)), Child);
    }

    void addRelatives(int count) {
        const int head = household_.persons.front().age;
        for (; count > 0; --count) {
            const int kind = random_.pick(std::array{45, 25, 30});
            if (kind == 0 && head >= 44)
                add(1 + random_.below(2), random_.below(std::min(18, head - 42)), Grandchild);
            else if (kind == 1 && head <= 64)
                add(random_.chance(0.68) ? 2 : 1, head + random_.between(19, 33), Parent);
            else
                add(1 + random_.below(2), random_.between(4, 55), OtherRelative);
        }
    }

    Household& household_;
    Random& random_;
};

int coded(Random& random, int value, int missing, double share) {
    return random.chance(share) ? missing : value;
}

void addDwelling(Household& household, const District& district, Random& random) {
    const bool urban = random.chance(district.urban);
    const int tenure = urban ? random.pick(std::array{46, 14, 32, 8})
                             : random.pick(std::array{70, 6, 9, 15});
    household.tenure = coded(random, 1 + tenure, codes::shortMissing, 0.006);
    const int water = urban ? random.pick(std::array{74, 14, 5, 5, 2})
                            : random.pick(std::array{22, 21, 26, 12, 19});
    household.water = coded(random, 1 + water, codes::shortMissing, 0.005);
    household.electricity = random.chance(0.003) ? -1 : random.chance(urban ? 0.97 : 0.68) ? 1 : 0;
    const int size = static_cast<int>(household.persons.size());
    const int rooms = std::clamp(1 + random.below(2 + size / 2) + random.below(3), 1, 12);
    household.rooms = coded(random, rooms, codes::longMissing, 0.007);
    household.weight =
        std::round(district.baseWeight * (0.97 + 0.07 * random.unit()) * 1000) / 1000;
}

void addEmigrants(Household& household, const District& district, Random& random) {
    household.emigrants.clear();
    if (!random.chance(0.07 - 0.04 * district.urban))
        return;
    for (int left = 1 + random.pick(std::array{75, 18, 7}); left > 0; --left) {
        Emigrant emigrant;
        emigrant.sex = random.chance(0.43) ? 2 : 1;
        emigrant.age = random.chance(0.02) ? codes::ageMissing
                                           : 14 + random.below(14) + random.below(18);
        emigrant.year = random.chance(0.03) ? 0 : 2025 - std::min(random.below(10), random.below(10));
        emigrant.destination =
            coded(random, 1 + random.pick(std::array{38, 17, 29, 16}), codes::shortMissing, 0.02);
        household.emigrants.push_back(emigrant);
    }
}

} // namespace

void makeHousehold(Household& household, const District& district, std::uint64_t limit,
                   Random random) {
    Composer(household, random).compose();
    if (household.persons.size() > limit) {
        household.persons.resize(limit);
        household.type = limit == 1 ? OnePerson : household.type;
        household.persons.front().partnered = limit > 1 && household.persons.front().partnered;
    }
    addDwelling(household, district, random);
    addEmigrants(household, district, random);
}

} // namespace kelx::tools
