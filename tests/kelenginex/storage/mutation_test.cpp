// SPDX-License-Identifier: GPL-3.0-or-later
// Thousands of altered files, the same ones in every run: a reader refuses or keeps its promises.
#include "storage/kxdb_file.h"
#include "storage/pointer_file.h"
#include "storage/raw_column.h"
#include "storage_fixture.h"

#include <random>

namespace kelx::testing {

namespace {

class Mutator {
public:
    explicit Mutator(unsigned seed) : random_(seed) {}

    std::string mutate(std::string bytes) {
        const auto changes = 1 + random_() % 3;
        for (std::uint64_t i = 0; i < changes; ++i)
            change(bytes);
        return bytes;
    }
    bool coin() { return random_() % 2 == 0; }
    std::uint64_t number() { return random_(); }

private:
    /// Half of the changes hit the header, where the lengths are.
    std::size_t place(const std::string& bytes) {
        const std::size_t end = coin() ? std::min<std::size_t>(bytes.size(), 256) : bytes.size();
        return random_() % end;
    }
    void change(std::string& bytes) {
        if (bytes.size() < 16)
            return;
        const std::size_t at = place(bytes);
        switch (random_() % 6) {
        case 0:
            bytes[at] = static_cast<char>(bytes[at] ^ (1 << random_() % 8));
            break;
        case 1:
            bytes[at] = static_cast<char>(random_());
            break;
        case 2:
        case 3:
            setNumber(bytes, at / 8 * 8);
            break;
        case 4:
            bytes.resize(random_() % bytes.size());
            break;
        default:
            bytes.insert(at, bytes.substr(random_() % bytes.size(), random_() % 64));
            break;
        }
    }
    void setNumber(std::string& bytes, std::size_t at) {
        const std::uint64_t choices[] = {0,
                                         1,
                                         bytes.size(),
                                         bytes.size() - at,
                                         255,
                                         65535,
                                         65536,
                                         0xffffffffu,
                                         std::uint64_t{1} << 40,
                                         0x7fffffffffffffffu,
                                         ~std::uint64_t{0},
                                         at / 64 * 64,
                                         random_()};
        const auto value = choices[random_() % std::size(choices)];
        if (at + 8 <= bytes.size())
            std::memcpy(bytes.data() + at, &value, 8);
    }
    std::mt19937_64 random_;
};

} // namespace

class MutationTest : public StorageTest {
protected:
    template <class Repair, class Consume>
    void run(unsigned seed, int rounds, const std::string& good, Repair repair, Consume consume) {
        Mutator mutator(seed);
        int accepted = 0;
        writeBytes(path("good"), good);
        ASSERT_TRUE(consume(path("good")));
        for (int i = 0; i < rounds; ++i) {
            auto bytes = mutator.mutate(good);
            if (mutator.coin())
                repair(bytes);
            writeBytes(path("mutated"), bytes);
            accepted += consume(path("mutated")) ? 1 : 0;
        }
        EXPECT_LT(accepted, rounds / 2); // most changes matter
    }
};

TEST_F(MutationTest, Columns) {
    const auto consume = [](const auto& file) { return consumeColumn(file); };
    writeIntegers(path("s"), {5, std::nullopt, -7, 100000, 3});
    run(1, 4000, readBytes(path("s")), repairColumn, consume);
    writeTexts(path("s"), {"alpha", "beta", "", std::nullopt, "gamma", "Ω"});
    run(2, 6000, readBytes(path("s")), repairColumn, consume);
    writeReals(path("s"), {0.25, std::nullopt, -7e100});
    run(3, 3000, readBytes(path("s")), repairColumn, consume);
    Integers blocks(65536, 3);
    blocks.resize(70000, 4);
    writeIntegers(path("s"), blocks);
    run(4, 500, readBytes(path("s")), repairColumn, consume);
}

TEST_F(MutationTest, ProtectedColumns) {
    const auto key = cheapKey("secret");
    writeTexts(path("s"), {"alpha", "beta", std::nullopt}, key);
    run(5, 4000, readBytes(path("s")), repairColumn,
        [&](const auto& file) { return consumeColumn(file, key); });
}

TEST_F(MutationTest, Pointers) {
    PointerWriter writer(path("s"));
    for (const int count : {2, 0, 5, 1, 1, 9, 0})
        writer.addParent(static_cast<std::uint64_t>(count));
    writer.commit();
    run(6, 5000, readBytes(path("s")), repairPointers,
        [](const auto& file) { return consumePointers(file); });
}

TEST_F(MutationTest, Dictionaries) {
    const auto consume = [](const auto& file) { return consumeDictionary(file, "secret"); };
    std::string payload;
    for (int i = 0; i < 300; ++i)
        payload += "variable " + std::to_string(i * i);
    writeKxdb(path("s"), {payload, nullptr});
    run(7, 4000, readBytes(path("s")), repairDictionary, consume);
    writeKxdb(path("s"), {payload, cheapKey("secret")});
    Mutator mutator(8);
    const auto good = readBytes(path("s"));
    for (int i = 0; i < 400; ++i) {
        auto bytes = mutator.mutate(good);
        // Costs that are allowed but high would only make this slow.
        if (bytes.size() >= 88)
            bytes.replace(72, 16, good, 72, 16);
        repairDictionary(bytes);
        writeBytes(path("mutated"), bytes);
        consume(path("mutated"));
    }
}

TEST_F(MutationTest, RawColumnsAndDescriptions) {
    Mutator mutator(9);
    using namespace std::string_literals;
    const std::string good = "12  -3 4.5\xff\x7f\x3c abc\x01\0 9  0001234C\xff\xff\xff"s;
    for (int i = 0; i < 8000; ++i) {
        writeBytes(path("mutated"), mutator.mutate(good));
        consumeRaw(path("mutated"), mutator.number());
    }
    writeBytes(path("a.bin"), std::string(12, 'x'));
    writeRawDescription(path("a.bin"), {RawType::Chr, 3, 0, ValueType::String}, 4);
    const auto description = readBytes(path("a.bin.desc"));
    for (int i = 0; i < 3000; ++i) {
        auto bytes = mutator.mutate(description);
        if (mutator.coin())
            repairHeader(bytes);
        writeBytes(path("a.bin.desc"), bytes);
        consumeDescription(path("a.bin"));
    }
}

} // namespace kelx::testing
