<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Not read by a native speaker. -->
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>qv_commons</name>
    <message>
        <source>New message</source>
        <extracomment>Title of the composer</extracomment>
        <translation>Yeni ileti</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that closes the composer</extracomment>
        <translation>Vazgeç</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button</extracomment>
        <translation>Gönder</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>Button that ends what goes on</extracomment>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the composer once all is done</extracomment>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>Whom the message is for; a field's caption</extracomment>
        <translation>Kime</translation>
    </message>
    <message>
        <source>Subject</source>
        <extracomment>A field's caption</extracomment>
        <translation>Konu</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A field's caption</extracomment>
        <translation>İleti</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Heard, not seen: a progress bar's name</extracomment>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>An attachment is being read…</source>
        <translation>Bir ek okunuyor…</translation>
    </message>
    <message>
        <source>Save draft</source>
        <extracomment>Button</extracomment>
        <translation>Taslağı sakla</translation>
    </message>
    <message>
        <source>Open a draft</source>
        <extracomment>Button with a menu of drafts</extracomment>
        <translation>Taslak aç</translation>
    </message>
    <message>
        <source>And %1 more of this text, which are sent as they are.</source>
        <extracomment>%1 is a size, for example 12 kB</extracomment>
        <translation>Bu metnin %1 kadarı daha olduğu gibi gönderilir.</translation>
    </message>
    <message>
        <source>Attachment %1, %2</source>
        <extracomment>Heard, not seen: %1 is a file's name, %2 its size</extracomment>
        <translation>Ek: %1, %2</translation>
    </message>
    <message>
        <source>(no subject)</source>
        <extracomment>In the menu of drafts</extracomment>
        <translation>(konu yok)</translation>
    </message>
    <message>
        <source>Discard this message?</source>
        <extracomment>Asked before the composer is closed</extracomment>
        <translation>Bu ileti silinsin mi?</translation>
    </message>
    <message>
        <source>What you have written is lost unless you save it.</source>
        <extracomment>Below that question</extracomment>
        <translation>Saklamazsanız yazdıklarınız kaybolur.</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>Button: close, and lose what was written</extracomment>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Keep writing</source>
        <extracomment>Button: back to the composer</extracomment>
        <translation>Yazmayı sürdür</translation>
    </message>
    <message>
        <source>Saving…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>Saklanıyor…</translation>
    </message>
    <message>
        <source>Sending…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>Gönderiliyor…</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>A draft; in the composer, while it is so</extracomment>
        <translation>Açılıyor…</translation>
    </message>
    <message>
        <source>Opening your mail program…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>E-posta programınız açılıyor…</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>Saklandığı yer: %1</translation>
    </message>
    <message>
        <source>Not saved. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Saklanmadı. %1</translation>
    </message>
    <message>
        <source>Not saved. Saving was stopped.</source>
        <extracomment>By the user</extracomment>
        <translation>Saklanmadı. Saklama durduruldu.</translation>
    </message>
    <message>
        <source>Stopped. Your message is still here.</source>
        <extracomment>By the user</extracomment>
        <translation>Durduruldu. İletiniz hâlâ burada.</translation>
    </message>
    <message>
        <source>Your message is still here. %1</source>
        <extracomment>Another draft was not opened; %1 is another of these sentences, which says why</extracomment>
        <translation>İletiniz hâlâ burada. %1</translation>
    </message>
    <message>
        <source>Not opened. Opening was stopped.</source>
        <extracomment>A draft; by the user</extracomment>
        <translation>Açılmadı. Açma durduruldu.</translation>
    </message>
    <message>
        <source>It was stopped. Your mail program may open all the same.</source>
        <extracomment>The handing over to it; by the user</extracomment>
        <translation>Durduruldu. E-posta programınız yine de açılabilir.</translation>
    </message>
    <message>
        <source>Sending was stopped.</source>
        <extracomment>By the user</extracomment>
        <translation>Gönderme durduruldu.</translation>
    </message>
    <message>
        <source>Sending was stopped. The message may have been sent all the same.</source>
        <extracomment>By the user</extracomment>
        <translation>Gönderme durduruldu. İleti yine de gönderilmiş olabilir.</translation>
    </message>
    <message>
        <source>Not sent. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Gönderilmedi. %1</translation>
    </message>
    <message>
        <source>Not sent. %1
A copy is kept as %2.</source>
        <extracomment>%1 is another of these sentences, which says why; %2 is a file</extracomment>
        <translation>Gönderilmedi. %1
Kopyasının yeri: %2.</translation>
    </message>
    <message>
        <source>Not sent. %1
No copy is kept: %2</source>
        <extracomment>%1 and %2 are others of these sentences, which say why</extracomment>
        <translation>Gönderilmedi. %1
Kopyası saklanmıyor: %2</translation>
    </message>
    <message>
        <source>Sending… No copy is kept: %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Gönderiliyor… Kopyası saklanmıyor: %1</translation>
    </message>
    <message>
        <source>Not handed over. No mail program was chosen.</source>
        <extracomment>The user was asked which mail program to open</extracomment>
        <translation>Aktarılmadı. E-posta programı seçilmedi.</translation>
    </message>
    <message>
        <source>Not handed over to your mail program. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>E-posta programınıza aktarılmadı. %1</translation>
    </message>
    <message>
        <source>Not handed over to your mail program. %1
You can send the message from here.</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>E-posta programınıza aktarılmadı. %1
İletiyi buradan gönderebilirsiniz.</translation>
    </message>
    <message>
        <source>This computer has no mail program.</source>
        <translation>Bu bilgisayarda e-posta programı yok.</translation>
    </message>
    <message>
        <source>The mail server refused the address or the message.</source>
        <translation>E-posta sunucusu adresi ya da iletiyi reddetti.</translation>
    </message>
    <message>
        <source>The mail server can't be reached at the moment. Please try again later.</source>
        <translation>E-posta sunucusuna şu anda ulaşılamıyor. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>You are not allowed to send mail.</source>
        <extracomment>The system’s mail program refuses the user</extracomment>
        <translation>E-posta gönderme izniniz yok.</translation>
    </message>
    <message>
        <source>Mail is not set up on this computer.</source>
        <translation>Bu bilgisayarda e-posta ayarlanmamış.</translation>
    </message>
    <message>
        <source>The mail program failed with code %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>E-posta programı %1 koduyla başarısız oldu.</translation>
    </message>
    <message>
        <source>The mail program %1 can't be started.</source>
        <extracomment>%1 is a file</extracomment>
        <translation>%1 e-posta programı başlatılamıyor.</translation>
    </message>
    <message>
        <source>The mail program took too long and was ended.</source>
        <extracomment>By the composer</extracomment>
        <translation>E-posta programı çok uzun sürdü ve sonlandırıldı.</translation>
    </message>
    <message>
        <source>The mail program crashed.</source>
        <translation>E-posta programı çöktü.</translation>
    </message>
    <message>
        <source>Please enter an address to send to.</source>
        <translation>Lütfen gönderilecek bir adres girin.</translation>
    </message>
    <message>
        <source>“%1” is not an e-mail address.</source>
        <extracomment>%1 is what the user has typed</extracomment>
        <translation>“%1” bir e-posta adresi değil.</translation>
    </message>
    <message>
        <source>The address holds a line break or another control character. Please take it out.</source>
        <translation>Adreste satır sonu ya da başka bir denetim karakteri var. Lütfen kaldırın.</translation>
    </message>
    <message>
        <source>The subject holds a line break or another control character. Please take it out.</source>
        <translation>Konuda satır sonu ya da başka bir denetim karakteri var. Lütfen kaldırın.</translation>
    </message>
    <message>
        <source>The attachment's name or type can't be sent.</source>
        <translation>Ekin adı ya da türü gönderilemiyor.</translation>
    </message>
    <message>
        <source>There is no room for the message: %1.</source>
        <extracomment>%1 is the system’s reason</extracomment>
        <translation>İleti için yer yok: %1.</translation>
    </message>
    <message>
        <source>The folder %1 can't be made: %2.</source>
        <extracomment>%2 is the system’s reason</extracomment>
        <translation>%1 klasörü oluşturulamıyor: %2.</translation>
    </message>
    <message>
        <source>The folder %1 can't be written: %2.</source>
        <extracomment>%2 is the system’s reason</extracomment>
        <translation>%1 klasörüne yazılamıyor: %2.</translation>
    </message>
    <message>
        <source>%1 can't be written: %2.</source>
        <extracomment>%1 is a file, %2 the system’s reason</extracomment>
        <translation>%1 yazılamıyor: %2.</translation>
    </message>
    <message>
        <source>%1 can't be read: %2.</source>
        <extracomment>%1 is a file, %2 the system’s reason</extracomment>
        <translation>%1 okunamıyor: %2.</translation>
    </message>
    <message>
        <source>%1 is not an e-mail.</source>
        <extracomment>%1 is a file</extracomment>
        <translation>%1 bir e-posta değil.</translation>
    </message>
    <message>
        <source>The desktop's mail portal has gone.</source>
        <extracomment>The portal is a program that opens the user’s mail program</extracomment>
        <translation>Masaüstünün e-posta portalı artık yok.</translation>
    </message>
    <message>
        <source>The desktop's mail portal says: %1.</source>
        <extracomment>%1 is what the portal says, in its own words</extracomment>
        <translation>Masaüstünün e-posta portalı bildiriyor: %1.</translation>
    </message>
    <message>
        <source>The desktop's mail portal could not open a mail program.</source>
        <translation>Masaüstünün e-posta portalı bir e-posta programı açamadı.</translation>
    </message>
    <message>
        <source>This computer has no mail program that xdg-email knows.</source>
        <extracomment>xdg-email is a program’s name</extracomment>
        <translation>Bu bilgisayarda xdg-email’in tanıdığı bir e-posta programı yok.</translation>
    </message>
    <message>
        <source>xdg-email could not open a mail program.</source>
        <extracomment>xdg-email is a program’s name</extracomment>
        <translation>xdg-email bir e-posta programı açamadı.</translation>
    </message>
    <message>
        <source>xdg-email failed with code %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>xdg-email %1 koduyla başarısız oldu.</translation>
    </message>
    <message>
        <source>xdg-email can't be started.</source>
        <translation>xdg-email başlatılamıyor.</translation>
    </message>
    <message>
        <source>xdg-email crashed.</source>
        <translation>xdg-email çöktü.</translation>
    </message>
</context>
</TS>
