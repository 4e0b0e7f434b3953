import QV_Commons_iOS
@available(iOS 13.0, *)
@MainActor func f(v: UIViewController) async {
  // the completion never comes for a user under age: there must be no async variant
  let f: (UIViewController, Int64, (() -> Void)?, ((UIViewController) -> Void)?, QV_AgeGateColorTheme, String, String) -> Void = QV_AgeGateHelper.startAgeGateProcess
  _ = f
}
