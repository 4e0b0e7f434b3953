// As much of the platform's XCTest as the example's UI test calls.
@_exported import Foundation

open class XCTestCase {}
public func XCTAssertTrue(_ value: @autoclosure () -> Bool) {}
public func XCTAssertFalse(_ value: @autoclosure () -> Bool) {}

public struct XCUIGestureVelocity: Sendable {
  public static var fast: XCUIGestureVelocity { fatalError() }
}
@MainActor open class XCUIElementTypeQueryProvider {
  init() {}
  public var staticTexts: XCUIElementQuery { fatalError() }
  public var buttons: XCUIElementQuery { fatalError() }
  public var textViews: XCUIElementQuery { fatalError() }
  public var tabBars: XCUIElementQuery { fatalError() }
  public var datePickers: XCUIElementQuery { fatalError() }
  public var pickerWheels: XCUIElementQuery { fatalError() }
}
@MainActor public final class XCUIElementQuery: XCUIElementTypeQueryProvider {
  public subscript(identifier: String) -> XCUIElement { fatalError() }
  public func element(boundBy index: Int) -> XCUIElement { fatalError() }
}
@MainActor open class XCUIElement: XCUIElementTypeQueryProvider {
  public var exists: Bool { fatalError() }
  public var isEnabled: Bool { fatalError() }
  public func waitForExistence(timeout: Double) -> Bool { fatalError() }
  public func tap() {}
  public func swipeDown(velocity: XCUIGestureVelocity) {}
  public func adjust(toPickerWheelValue value: String) {}
}
@MainActor public final class XCUIApplication: XCUIElement {
  public override init() {}
  public var launchArguments: [String] = []
  public func launch() {}
}

public struct Date {
  public init() {}
}
public struct Calendar {
  public enum Identifier { case gregorian }
  public enum Component { case year }
  public init(identifier: Identifier) {}
  public func component(_ component: Component, from date: Date) -> Int { fatalError() }
}
