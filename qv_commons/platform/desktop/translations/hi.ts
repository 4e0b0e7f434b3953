<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Not read by a native speaker. -->
<TS version="2.1" language="hi" sourcelanguage="en">
<context>
    <name>qv_commons</name>
    <message>
        <source>New message</source>
        <extracomment>Title of the composer</extracomment>
        <translation>नया संदेश</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that closes the composer</extracomment>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button</extracomment>
        <translation>भेजें</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>Button that ends what goes on</extracomment>
        <translation>रोकें</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the composer once all is done</extracomment>
        <translation>हो गया</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>Whom the message is for; a field's caption</extracomment>
        <translation>प्रति</translation>
    </message>
    <message>
        <source>Subject</source>
        <extracomment>A field's caption</extracomment>
        <translation>विषय</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A field's caption</extracomment>
        <translation>संदेश</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Heard, not seen: a progress bar's name</extracomment>
        <translation>प्रगति</translation>
    </message>
    <message>
        <source>An attachment is being read…</source>
        <translation>अटैचमेंट पढ़ा जा रहा है…</translation>
    </message>
    <message>
        <source>Save draft</source>
        <extracomment>Button</extracomment>
        <translation>ड्राफ़्ट सहेजें</translation>
    </message>
    <message>
        <source>Open a draft</source>
        <extracomment>Button with a menu of drafts</extracomment>
        <translation>ड्राफ़्ट खोलें</translation>
    </message>
    <message>
        <source>And %1 more of this text, which are sent as they are.</source>
        <extracomment>%1 is a size, for example 12 kB</extracomment>
        <translation>और इस टेक्स्ट का %1 जो ज्यों का त्यों भेजा जाएगा।</translation>
    </message>
    <message>
        <source>Attachment %1, %2</source>
        <extracomment>Heard, not seen: %1 is a file's name, %2 its size</extracomment>
        <translation>अटैचमेंट %1, %2</translation>
    </message>
    <message>
        <source>(no subject)</source>
        <extracomment>In the menu of drafts</extracomment>
        <translation>(कोई विषय नहीं)</translation>
    </message>
    <message>
        <source>Discard this message?</source>
        <extracomment>Asked before the composer is closed</extracomment>
        <translation>क्या यह संदेश हटाना है?</translation>
    </message>
    <message>
        <source>What you have written is lost unless you save it.</source>
        <extracomment>Below that question</extracomment>
        <translation>आपने जो लिखा है, सहेजे बिना वह खो जाएगा।</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>Button: close, and lose what was written</extracomment>
        <translation>हटाएँ</translation>
    </message>
    <message>
        <source>Keep writing</source>
        <extracomment>Button: back to the composer</extracomment>
        <translation>लिखना जारी रखें</translation>
    </message>
    <message>
        <source>Saving…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>सहेजा जा रहा है…</translation>
    </message>
    <message>
        <source>Sending…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>भेजा जा रहा है…</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>A draft; in the composer, while it is so</extracomment>
        <translation>खोला जा रहा है…</translation>
    </message>
    <message>
        <source>Opening your mail program…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>आपका मेल प्रोग्राम खोला जा रहा है…</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>यहाँ सहेजा गया: %1</translation>
    </message>
    <message>
        <source>Not saved. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>सहेजा नहीं गया। %1</translation>
    </message>
    <message>
        <source>Not saved. Saving was stopped.</source>
        <extracomment>By the user</extracomment>
        <translation>सहेजा नहीं गया। सहेजना रोक दिया गया।</translation>
    </message>
    <message>
        <source>Stopped. Your message is still here.</source>
        <extracomment>By the user</extracomment>
        <translation>रोक दिया गया। आपका संदेश अब भी यहीं है।</translation>
    </message>
    <message>
        <source>Your message is still here. %1</source>
        <extracomment>Another draft was not opened; %1 is another of these sentences, which says why</extracomment>
        <translation>आपका संदेश अब भी यहीं है। %1</translation>
    </message>
    <message>
        <source>Not opened. Opening was stopped.</source>
        <extracomment>A draft; by the user</extracomment>
        <translation>खोला नहीं गया। खोलना रोक दिया गया।</translation>
    </message>
    <message>
        <source>It was stopped. Your mail program may open all the same.</source>
        <extracomment>The handing over to it; by the user</extracomment>
        <translation>रोक दिया गया। आपका मेल प्रोग्राम फिर भी खुल सकता है।</translation>
    </message>
    <message>
        <source>Sending was stopped.</source>
        <extracomment>By the user</extracomment>
        <translation>भेजना रोक दिया गया।</translation>
    </message>
    <message>
        <source>Sending was stopped. The message may have been sent all the same.</source>
        <extracomment>By the user</extracomment>
        <translation>भेजना रोक दिया गया। हो सकता है संदेश फिर भी भेज दिया गया हो।</translation>
    </message>
    <message>
        <source>Not sent. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>भेजा नहीं गया। %1</translation>
    </message>
    <message>
        <source>Not sent. %1
A copy is kept as %2.</source>
        <extracomment>%1 is another of these sentences, which says why; %2 is a file</extracomment>
        <translation>भेजा नहीं गया। %1
एक कॉपी यहाँ रखी गई है: %2.</translation>
    </message>
    <message>
        <source>Not sent. %1
No copy is kept: %2</source>
        <extracomment>%1 and %2 are others of these sentences, which say why</extracomment>
        <translation>भेजा नहीं गया। %1
कोई कॉपी नहीं रखी गई: %2</translation>
    </message>
    <message>
        <source>Sending… No copy is kept: %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>भेजा जा रहा है… कोई कॉपी नहीं रखी गई: %1</translation>
    </message>
    <message>
        <source>Not handed over. No mail program was chosen.</source>
        <extracomment>The user was asked which mail program to open</extracomment>
        <translation>सौंपा नहीं गया। कोई मेल प्रोग्राम नहीं चुना गया।</translation>
    </message>
    <message>
        <source>Not handed over to your mail program. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>आपके मेल प्रोग्राम को सौंपा नहीं गया। %1</translation>
    </message>
    <message>
        <source>Not handed over to your mail program. %1
You can send the message from here.</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>आपके मेल प्रोग्राम को सौंपा नहीं गया। %1
आप संदेश यहाँ से भेज सकते हैं।</translation>
    </message>
    <message>
        <source>This computer has no mail program.</source>
        <translation>इस कंप्यूटर पर कोई मेल प्रोग्राम नहीं है।</translation>
    </message>
    <message>
        <source>The mail server refused the address or the message.</source>
        <translation>मेल सर्वर ने पता या संदेश अस्वीकार कर दिया।</translation>
    </message>
    <message>
        <source>The mail server can't be reached at the moment. Please try again later.</source>
        <translation>अभी मेल सर्वर तक नहीं पहुँचा जा सकता। कृपया बाद में फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>You are not allowed to send mail.</source>
        <extracomment>The system’s mail program refuses the user</extracomment>
        <translation>आपको मेल भेजने की अनुमति नहीं है।</translation>
    </message>
    <message>
        <source>Mail is not set up on this computer.</source>
        <translation>इस कंप्यूटर पर मेल सेट नहीं किया गया है।</translation>
    </message>
    <message>
        <source>The mail program failed with code %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>मेल प्रोग्राम कोड %1 के साथ विफल हुआ।</translation>
    </message>
    <message>
        <source>The mail program %1 can't be started.</source>
        <extracomment>%1 is a file</extracomment>
        <translation>मेल प्रोग्राम %1 शुरू नहीं किया जा सकता।</translation>
    </message>
    <message>
        <source>The mail program took too long and was ended.</source>
        <extracomment>By the composer</extracomment>
        <translation>मेल प्रोग्राम ने बहुत समय लिया और उसे बंद कर दिया गया।</translation>
    </message>
    <message>
        <source>The mail program crashed.</source>
        <translation>मेल प्रोग्राम क्रैश हो गया।</translation>
    </message>
    <message>
        <source>Please enter an address to send to.</source>
        <translation>कृपया वह पता डालें जिस पर भेजना है।</translation>
    </message>
    <message>
        <source>“%1” is not an e-mail address.</source>
        <extracomment>%1 is what the user has typed</extracomment>
        <translation>“%1” ईमेल पता नहीं है।</translation>
    </message>
    <message>
        <source>The address holds a line break or another control character. Please take it out.</source>
        <translation>पते में लाइन ब्रेक या कोई और नियंत्रण वर्ण है। कृपया उसे हटा दें।</translation>
    </message>
    <message>
        <source>The subject holds a line break or another control character. Please take it out.</source>
        <translation>विषय में लाइन ब्रेक या कोई और नियंत्रण वर्ण है। कृपया उसे हटा दें।</translation>
    </message>
    <message>
        <source>The attachment's name or type can't be sent.</source>
        <translation>अटैचमेंट का नाम या प्रकार भेजा नहीं जा सकता।</translation>
    </message>
    <message>
        <source>There is no room for the message: %1.</source>
        <extracomment>%1 is the system’s reason</extracomment>
        <translation>संदेश के लिए जगह नहीं है: %1.</translation>
    </message>
    <message>
        <source>The folder %1 can't be made: %2.</source>
        <extracomment>%2 is the system’s reason</extracomment>
        <translation>फ़ोल्डर %1 नहीं बनाया जा सकता: %2.</translation>
    </message>
    <message>
        <source>The folder %1 can't be written: %2.</source>
        <extracomment>%2 is the system’s reason</extracomment>
        <translation>फ़ोल्डर %1 में लिखा नहीं जा सकता: %2.</translation>
    </message>
    <message>
        <source>%1 can't be written: %2.</source>
        <extracomment>%1 is a file, %2 the system’s reason</extracomment>
        <translation>%1 को लिखा नहीं जा सकता: %2.</translation>
    </message>
    <message>
        <source>%1 can't be read: %2.</source>
        <extracomment>%1 is a file, %2 the system’s reason</extracomment>
        <translation>%1 को पढ़ा नहीं जा सकता: %2.</translation>
    </message>
    <message>
        <source>%1 is not an e-mail.</source>
        <extracomment>%1 is a file</extracomment>
        <translation>%1 ईमेल नहीं है।</translation>
    </message>
    <message>
        <source>The desktop's mail portal has gone.</source>
        <extracomment>The portal is a program that opens the user’s mail program</extracomment>
        <translation>डेस्कटॉप का मेल पोर्टल अब उपलब्ध नहीं है।</translation>
    </message>
    <message>
        <source>The desktop's mail portal says: %1.</source>
        <extracomment>%1 is what the portal says, in its own words</extracomment>
        <translation>डेस्कटॉप का मेल पोर्टल कहता है: %1.</translation>
    </message>
    <message>
        <source>The desktop's mail portal could not open a mail program.</source>
        <translation>डेस्कटॉप का मेल पोर्टल कोई मेल प्रोग्राम नहीं खोल सका।</translation>
    </message>
    <message>
        <source>This computer has no mail program that xdg-email knows.</source>
        <extracomment>xdg-email is a program’s name</extracomment>
        <translation>इस कंप्यूटर पर ऐसा कोई मेल प्रोग्राम नहीं है जिसे xdg-email जानता हो।</translation>
    </message>
    <message>
        <source>xdg-email could not open a mail program.</source>
        <extracomment>xdg-email is a program’s name</extracomment>
        <translation>xdg-email कोई मेल प्रोग्राम नहीं खोल सका।</translation>
    </message>
    <message>
        <source>xdg-email failed with code %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>xdg-email कोड %1 के साथ विफल हुआ।</translation>
    </message>
    <message>
        <source>xdg-email can't be started.</source>
        <translation>xdg-email शुरू नहीं किया जा सकता।</translation>
    </message>
    <message>
        <source>xdg-email crashed.</source>
        <translation>xdg-email क्रैश हो गया।</translation>
    </message>
</context>
</TS>
