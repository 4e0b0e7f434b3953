// refused: main actor-isolated
import QV_Commons_iOS
func f(v: UIViewController) {
  QV_AgeGateHelper.startAgeGateProcess(viewController: v, minimumAgeRequired: 1, completion: nil, contactUsHandler: nil, colorTheme: .defaultTheme(), privacyLink: "", termsOfServiceLink: "")
}
