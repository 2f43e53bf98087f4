#include <gtest/gtest.h>

#include <string>

#include "tests/support/test_machine.h"

namespace {

constexpr char kTr500k2[] = R"(
System        : Corvex TR500 K2
Serial No.    : VX8431T5K2
ROM version   : Z18 06/12/2009
Kelm present  : Yes
Embedded NICs : 4
	NIC1 MAC: 00:1c:4e:0a:5b:10
	NIC2 MAC: 00:1c:4e:0a:5b:11
	NIC3 MAC: 00:1c:4e:0a:5b:12
	NIC4 MAC: 00:1c:4e:0a:5b:13

Processor: 0
	Name         : Intel Xeon
	Stepping     : 5
	Speed        : 2933 MHz
	Bus          : 1333 MHz
	Core         : 4
	Thread       : 8
	Socket       : 1
	Level2 Cache : 1024 KBytes
	Level3 Cache : 8192 KBytes
	Status       : Ok

Processor: 1
	Name         : Intel Xeon
	Stepping     : 5
	Speed        : 2933 MHz
	Bus          : 1333 MHz
	Core         : 4
	Thread       : 8
	Socket       : 2
	Level2 Cache : 1024 KBytes
	Level3 Cache : 16384 KBytes
	Status       : Ok

Processor total  : 2

Memory installed : 16384 MBytes
ECC supported    : Yes

)";

constexpr char kTr300[] = R"(
System        : Corvex TR300
Serial No.    : VX6447T300
ROM version   : Z07 11/03/2006
Kelm present  : No
Embedded NICs : 2
	NIC1 MAC: 00:1c:4e:14:30:2a
	NIC2 MAC: 00:1c:4e:14:30:2b

Processor: 0
	Name         : Intel Xeon
	Stepping     : 5
	Speed        : 2333 MHz
	Bus          : 1333 MHz
	Core         : 2
	Thread       : 2
	Socket       : 1
	Level2 Cache : 4096 KBytes
	Status       : Ok

Processor total  : 1

Memory installed : 1536 MBytes
ECC supported    : Yes

)";

constexpr char kBx20[] = R"(
System        : Corvex BX20
Serial No.    : VX8108BX20
ROM version   : Z31 02/20/2008
Kelm present  : Yes
Embedded NICs : 2
	NIC1 MAC: 00:1c:4e:31:07:60
	NIC2 MAC: 00:1c:4e:31:07:62

Processor: 0
	Name         : Intel Xeon
	Stepping     : 5
	Speed        : 2500 MHz
	Bus          : 1333 MHz
	Core         : 4
	Thread       : 4
	Socket       : 2
	Level2 Cache : 6144 KBytes
	Status       : Ok

Processor: 1
	Name         : Intel Xeon
	Stepping     : 5
	Speed        : 2500 MHz
	Bus          : 1333 MHz
	Core         : 4
	Thread       : 4
	Socket       : 1
	Level2 Cache : 6144 KBytes
	Status       : Ok

Processor total  : 2

Memory installed : 8192 MBytes
ECC supported    : Yes

)";

}  // namespace

TEST(ShowServer, TellsEachModelInFull) {
    struct {
        const char* model;
        const char* output;
    } constexpr kModels[] = {{"tr500k2", kTr500k2}, {"tr300", kTr300}, {"bx20", kBx20}};
    for (const auto& m : kModels) {
        const RunResult result = TestMachine(m.model).Script("SHOW SERVER");
        EXPECT_EQ(result.output, m.output) << m.model;
        EXPECT_EQ(result.errors, "") << m.model;
        EXPECT_EQ(result.status, 0) << m.model;
    }
}
