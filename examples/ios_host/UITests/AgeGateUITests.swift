import XCTest

/// Two lives of the example, by what can be seen and touched. What the library keeps is set aside for a start by
/// the arguments that user defaults read first, and read at the next.
final class AgeGateUITests: XCTestCase {
    private static let newUser = ["-QV_AgeGate_Shown", "NO", "-QV_AgeGate_Blocked", "NO"]

    @MainActor
    func testAnAdultIsAskedOnce() {
        let app = start(Self.newUser)
        XCTAssertTrue(app.staticTexts["QV_AgeGate_Header"].waitForExistence(timeout: 10))
        XCTAssertFalse(app.buttons["QV_AgeGate_Confirm"].isEnabled)
        app.swipeDown(velocity: .fast)
        XCTAssertTrue(app.staticTexts["QV_AgeGate_Header"].exists)
        confirm(bornYearsAgo: 30, in: app)
        XCTAssertTrue(app.tabBars.buttons["Let through"].waitForExistence(timeout: 10))

        let again = start([])
        XCTAssertTrue(again.tabBars.buttons["Let through"].waitForExistence(timeout: 10))
        XCTAssertFalse(again.staticTexts["QV_AgeGate_Header"].exists)
    }

    @MainActor
    func testAChildIsRefusedAtEachStart() {
        let app = start(Self.newUser)
        XCTAssertTrue(app.staticTexts["QV_AgeGate_Header"].waitForExistence(timeout: 10))
        confirm(bornYearsAgo: 3, in: app)
        XCTAssertTrue(app.staticTexts["QV_AgeGateRefused_Header"].waitForExistence(timeout: 10))

        let again = start([])
        XCTAssertTrue(again.staticTexts["QV_AgeGateRefused_Header"].waitForExistence(timeout: 10))
        XCTAssertTrue(again.textViews["QV_AgeGateRefused_Contact"].exists)
    }

    @MainActor
    private func start(_ arguments: [String]) -> XCUIApplication {
        let app = XCUIApplication()
        app.launchArguments = arguments + ["-AppleLanguages", "(en)", "-AppleLocale", "en_US"]
        app.launch()
        return app
    }

    /// In the United States the wheel of years is the last.
    @MainActor
    private func confirm(bornYearsAgo years: Int, in app: XCUIApplication) {
        let year = Calendar(identifier: .gregorian).component(.year, from: Date()) - years
        app.datePickers["QV_AgeGate_DatePicker"].pickerWheels.element(boundBy: 2)
            .adjust(toPickerWheelValue: String(year))
        app.buttons["QV_AgeGate_Confirm"].tap()
    }
}
