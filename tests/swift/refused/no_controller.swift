// refused: must be unwrapped to a value of type
import QV_Commons_iOS
@MainActor func f(v: UIViewController?) {
  QV_SupportHelper.shared.contactSupport(viewController: v, email: "", subject: "", purchases: [], openingMessage: nil, additionalMetadata: nil, delegate: nil)
}
