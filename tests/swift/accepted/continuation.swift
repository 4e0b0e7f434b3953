import QV_Commons_iOS
@available(iOS 13.0, *)
@MainActor func passGate(on v: UIViewController) async {
  await withCheckedContinuation { (c: CheckedContinuation<Void, Never>) in
    QV_AgeGateHelper.startAgeGateProcess(viewController: v, minimumAgeRequired: 16, completion: { c.resume() }, contactUsHandler: { s in s.title = "x" }, colorTheme: .defaultTheme(), privacyLink: "", termsOfServiceLink: "")
  }
}
