<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Not read by a native speaker. -->
<TS version="2.1" language="zh_Hant" sourcelanguage="en">
<context>
    <name>qv_commons</name>
    <message>
        <source>New message</source>
        <extracomment>Title of the composer</extracomment>
        <translation>新郵件</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that closes the composer</extracomment>
        <translation>取消</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button</extracomment>
        <translation>傳送</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>Button that ends what goes on</extracomment>
        <translation>停止</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the composer once all is done</extracomment>
        <translation>完成</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>Whom the message is for; a field's caption</extracomment>
        <translation>收件人</translation>
    </message>
    <message>
        <source>Subject</source>
        <extracomment>A field's caption</extracomment>
        <translation>主旨</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A field's caption</extracomment>
        <translation>內文</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Heard, not seen: a progress bar's name</extracomment>
        <translation>進度</translation>
    </message>
    <message>
        <source>An attachment is being read…</source>
        <translation>正在讀取附件…</translation>
    </message>
    <message>
        <source>Save draft</source>
        <extracomment>Button</extracomment>
        <translation>儲存草稿</translation>
    </message>
    <message>
        <source>Open a draft</source>
        <extracomment>Button with a menu of drafts</extracomment>
        <translation>打開草稿</translation>
    </message>
    <message>
        <source>And %1 more of this text, which are sent as they are.</source>
        <extracomment>%1 is a size, for example 12 kB</extracomment>
        <translation>此文字還有 %1，將照原樣傳送。</translation>
    </message>
    <message>
        <source>Attachment %1, %2</source>
        <extracomment>Heard, not seen: %1 is a file's name, %2 its size</extracomment>
        <translation>附件 %1，%2</translation>
    </message>
    <message>
        <source>(no subject)</source>
        <extracomment>In the menu of drafts</extracomment>
        <translation>（沒有主旨）</translation>
    </message>
    <message>
        <source>Discard this message?</source>
        <extracomment>Asked before the composer is closed</extracomment>
        <translation>要捨棄這封郵件嗎？</translation>
    </message>
    <message>
        <source>What you have written is lost unless you save it.</source>
        <extracomment>Below that question</extracomment>
        <translation>如果不儲存，您所寫的內容將會遺失。</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>Button: close, and lose what was written</extracomment>
        <translation>捨棄</translation>
    </message>
    <message>
        <source>Keep writing</source>
        <extracomment>Button: back to the composer</extracomment>
        <translation>繼續編寫</translation>
    </message>
    <message>
        <source>Saving…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>正在儲存…</translation>
    </message>
    <message>
        <source>Sending…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>正在傳送…</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>A draft; in the composer, while it is so</extracomment>
        <translation>正在打開…</translation>
    </message>
    <message>
        <source>Opening your mail program…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>正在打開您的郵件程式…</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>已儲存到 %1</translation>
    </message>
    <message>
        <source>Not saved. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>未儲存。%1</translation>
    </message>
    <message>
        <source>Not saved. Saving was stopped.</source>
        <extracomment>By the user</extracomment>
        <translation>未儲存。儲存已停止。</translation>
    </message>
    <message>
        <source>Stopped. Your message is still here.</source>
        <extracomment>By the user</extracomment>
        <translation>已停止。您的郵件仍在這裡。</translation>
    </message>
    <message>
        <source>Your message is still here. %1</source>
        <extracomment>Another draft was not opened; %1 is another of these sentences, which says why</extracomment>
        <translation>您的郵件仍在這裡。%1</translation>
    </message>
    <message>
        <source>Not opened. Opening was stopped.</source>
        <extracomment>A draft; by the user</extracomment>
        <translation>未打開。打開操作已停止。</translation>
    </message>
    <message>
        <source>It was stopped. Your mail program may open all the same.</source>
        <extracomment>The handing over to it; by the user</extracomment>
        <translation>已停止。您的郵件程式仍可能會打開。</translation>
    </message>
    <message>
        <source>Sending was stopped.</source>
        <extracomment>By the user</extracomment>
        <translation>傳送已停止。</translation>
    </message>
    <message>
        <source>Sending was stopped. The message may have been sent all the same.</source>
        <extracomment>By the user</extracomment>
        <translation>傳送已停止。郵件仍可能已傳送。</translation>
    </message>
    <message>
        <source>Not sent. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>未傳送。%1</translation>
    </message>
    <message>
        <source>Not sent. %1
A copy is kept as %2.</source>
        <extracomment>%1 is another of these sentences, which says why; %2 is a file</extracomment>
        <translation>未傳送。%1
副本已保留為 %2。</translation>
    </message>
    <message>
        <source>Not sent. %1
No copy is kept: %2</source>
        <extracomment>%1 and %2 are others of these sentences, which say why</extracomment>
        <translation>未傳送。%1
未保留副本：%2</translation>
    </message>
    <message>
        <source>Sending… No copy is kept: %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>正在傳送…未保留副本：%1</translation>
    </message>
    <message>
        <source>Not handed over. No mail program was chosen.</source>
        <extracomment>The user was asked which mail program to open</extracomment>
        <translation>未移交。未選取郵件程式。</translation>
    </message>
    <message>
        <source>Not handed over to your mail program. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>未移交給您的郵件程式。%1</translation>
    </message>
    <message>
        <source>Not handed over to your mail program. %1
You can send the message from here.</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>未移交給您的郵件程式。%1
您可以從這裡傳送郵件。</translation>
    </message>
    <message>
        <source>This computer has no mail program.</source>
        <translation>此電腦沒有郵件程式。</translation>
    </message>
    <message>
        <source>The mail server refused the address or the message.</source>
        <translation>郵件伺服器拒絕了地址或郵件。</translation>
    </message>
    <message>
        <source>The mail server can't be reached at the moment. Please try again later.</source>
        <translation>目前無法連接郵件伺服器。請稍後再試。</translation>
    </message>
    <message>
        <source>You are not allowed to send mail.</source>
        <extracomment>The system’s mail program refuses the user</extracomment>
        <translation>您沒有傳送郵件的權限。</translation>
    </message>
    <message>
        <source>Mail is not set up on this computer.</source>
        <translation>此電腦尚未設定郵件。</translation>
    </message>
    <message>
        <source>The mail program failed with code %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>郵件程式失敗，代碼為 %1。</translation>
    </message>
    <message>
        <source>The mail program %1 can't be started.</source>
        <extracomment>%1 is a file</extracomment>
        <translation>無法啟動郵件程式 %1。</translation>
    </message>
    <message>
        <source>The mail program took too long and was ended.</source>
        <extracomment>By the composer</extracomment>
        <translation>郵件程式耗時過長，已被終止。</translation>
    </message>
    <message>
        <source>The mail program crashed.</source>
        <translation>郵件程式已當機。</translation>
    </message>
    <message>
        <source>Please enter an address to send to.</source>
        <translation>請輸入收件人地址。</translation>
    </message>
    <message>
        <source>“%1” is not an e-mail address.</source>
        <extracomment>%1 is what the user has typed</extracomment>
        <translation>「%1」不是電子郵件地址。</translation>
    </message>
    <message>
        <source>The address holds a line break or another control character. Please take it out.</source>
        <translation>地址中包含換行或其他控制字元。請將其移除。</translation>
    </message>
    <message>
        <source>The subject holds a line break or another control character. Please take it out.</source>
        <translation>主旨中包含換行或其他控制字元。請將其移除。</translation>
    </message>
    <message>
        <source>The attachment's name or type can't be sent.</source>
        <translation>無法傳送此名稱或類型的附件。</translation>
    </message>
    <message>
        <source>There is no room for the message: %1.</source>
        <extracomment>%1 is the system’s reason</extracomment>
        <translation>沒有空間儲存郵件：%1。</translation>
    </message>
    <message>
        <source>The folder %1 can't be made: %2.</source>
        <extracomment>%2 is the system’s reason</extracomment>
        <translation>無法建立檔案夾 %1：%2。</translation>
    </message>
    <message>
        <source>The folder %1 can't be written: %2.</source>
        <extracomment>%2 is the system’s reason</extracomment>
        <translation>無法寫入檔案夾 %1：%2。</translation>
    </message>
    <message>
        <source>%1 can't be written: %2.</source>
        <extracomment>%1 is a file, %2 the system’s reason</extracomment>
        <translation>無法寫入 %1：%2。</translation>
    </message>
    <message>
        <source>%1 can't be read: %2.</source>
        <extracomment>%1 is a file, %2 the system’s reason</extracomment>
        <translation>無法讀取 %1：%2。</translation>
    </message>
    <message>
        <source>%1 is not an e-mail.</source>
        <extracomment>%1 is a file</extracomment>
        <translation>%1 不是電子郵件。</translation>
    </message>
    <message>
        <source>The desktop's mail portal has gone.</source>
        <extracomment>The portal is a program that opens the user’s mail program</extracomment>
        <translation>桌面的郵件入口已無法使用。</translation>
    </message>
    <message>
        <source>The desktop's mail portal says: %1.</source>
        <extracomment>%1 is what the portal says, in its own words</extracomment>
        <translation>桌面的郵件入口回報：%1。</translation>
    </message>
    <message>
        <source>The desktop's mail portal could not open a mail program.</source>
        <translation>桌面的郵件入口無法打開郵件程式。</translation>
    </message>
    <message>
        <source>This computer has no mail program that xdg-email knows.</source>
        <extracomment>xdg-email is a program’s name</extracomment>
        <translation>此電腦沒有 xdg-email 可辨識的郵件程式。</translation>
    </message>
    <message>
        <source>xdg-email could not open a mail program.</source>
        <extracomment>xdg-email is a program’s name</extracomment>
        <translation>xdg-email 無法打開郵件程式。</translation>
    </message>
    <message>
        <source>xdg-email failed with code %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>xdg-email 失敗，代碼為 %1。</translation>
    </message>
    <message>
        <source>xdg-email can't be started.</source>
        <translation>無法啟動 xdg-email。</translation>
    </message>
    <message>
        <source>xdg-email crashed.</source>
        <translation>xdg-email 已當機。</translation>
    </message>
</context>
</TS>
