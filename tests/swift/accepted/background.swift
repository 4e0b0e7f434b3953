import QV_Commons_iOS
// What is bound to no thread, from code that is on none in particular.
struct Api {
  func userAgent() -> String { QV_AppInfoHelper.appName() + "/" + QV_AppInfoHelper.appVersion() }
}
func config() -> String? { QV_BundleFileHelper.loadJsonFromBundle(filename: "config") }
func helper() -> QV_SupportHelper { QV_SupportHelper.shared }
enum Brand {
  static let theme = QV_AgeGateColorTheme(
    backgroundColor: .white, buttonBackgroundColor: .black, buttonTextColor: .white,
    textColor: .black, policiesTextColor: .black)
}
@available(iOS 13.0, *)
actor Loader {
  var text: String?
  func load() { text = QV_BundleFileHelper.loadJsonFromBundle(filename: "config") }
}
@available(iOS 13.0, *)
func review() async { await MainActor.run { QV_RateHelper.openWriteReviewOnAppStore(appId: "id1") } }
