import QVCommonsCore
import QVCommonsMemory
import XCTest

final class CoreTests: XCTestCase {
    private typealias Time = qv_commons.QV_TimeHelper

    func testAppInformationComesFromTheInstalledAdapter() {
        qv_commons.memory.installMemoryPlatform("2.4.1")
        XCTAssertEqual(String(qv_commons.QV_AppInfoHelper.appVersion()), "2.4.1()")
    }

    func testTime() {
        XCTAssertEqual(String(Time.secondsToHms(3725)), "1:02:05")
        XCTAssertEqual(String(Time.secondsToHmsDigits(3725)), "10205")
        XCTAssertEqual(Time.secondsToMinutes(62, true), 2)
        XCTAssertEqual(Time.secondsToDays(172799), 1)
    }
}
