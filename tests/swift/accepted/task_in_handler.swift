import QV_Commons_iOS
@available(iOS 13.0, *)
final class H: UIViewController {
  var passed = false
  func go() {
    QV_AgeGateHelper.startAgeGateProcess(viewController: self, minimumAgeRequired: 16,
      completion: { Task { await self.later() } },
      contactUsHandler: { [weak self] screen in Task { @MainActor in self?.title = screen.title } },
      colorTheme: .defaultTheme(), privacyLink: "", termsOfServiceLink: "")
    Task.detached { await MainActor.run { _ = QV_ViewControllerHelper.topViewController(controller: nil) } }
  }
  func later() async { passed = true }
}
