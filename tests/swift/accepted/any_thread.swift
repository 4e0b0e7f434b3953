import QV_Commons_iOS
func anyThread() -> (Int64, Int, Int64, Int, String, String, Int64, URL, URL) {
  (QV_TimeHelper.currentTimeInMilliseconds(), QV_TimeHelper.currentTimeInSeconds(), QV_TimeHelper.secondsToMinutes(1, roundUp: true), QV_TimeHelper.secondsToDays(seconds: 1), QV_TimeHelper.secondsToHms(1), QV_TimeHelper.secondsToHmsDigits(1), QV_TimeHelper.hmsToSeconds("1"), QV_Links.privacyPolicy(), QV_Links.termsOfService())
}
@available(iOS 13.0, *)
actor A { func f() -> String { QV_TimeHelper.secondsToHms(5) } }
