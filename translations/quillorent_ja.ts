<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>About</name>
    <message>
        <source>About Quillorent</source>
        <translation>Quillorentについて</translation>
    </message>
    <message>
        <source>Quillorent %1</source>
        <translation>Quillorent %1</translation>
    </message>
    <message>
        <source>Makes encrypted archives of your folders, and brings them back.</source>
        <translation>フォルダーを暗号化アーカイブにし、必要なときに復元します。</translation>
    </message>
    <message>
        <source>© 2026 The Quillorent developers. Free software under the MIT licence: you may use, change and share it; it comes without any warranty.</source>
        <translation>© 2026 Quillorentの開発者。MITライセンスのフリーソフトウェアです。使用、変更、再配布は自由ですが、いかなる保証もありません。</translation>
    </message>
    <message>
        <source>It stands on these libraries and their licences:</source>
        <translation>次のライブラリを使用しています（それぞれのライセンスに従います）:</translation>
    </message>
</context>
<context>
    <name>Advice</name>
    <message>
        <source>Make room on the disk of the destination, or choose another one. Then back up again.</source>
        <translation>保存先のディスクに空きを作るか、別の保存先を選んでください。その後、もう一度バックアップしてください。</translation>
    </message>
    <message>
        <source>The destination takes no files of that size. Have the archives split into files of less than 4 GB, and back up again.</source>
        <translation>保存先には、この大きさのファイルを置けません。アーカイブを4 GB未満のファイルに分割する設定にして、もう一度バックアップしてください。</translation>
    </message>
    <message>
        <source>Nothing can be written to the destination any more. Connect its disk anew, or choose another one, and back up again.</source>
        <translation>保存先に書き込めなくなりました。ディスクを接続し直すか、別の保存先を選んで、もう一度バックアップしてください。</translation>
    </message>
    <message>
        <source>A disk does not work as it should. Check its cable, try another disk as the destination, and save what is on this one.</source>
        <translation>ディスクが正常に動作していません。ケーブルを確認し、別のディスクを保存先として試し、このディスクにあるものを退避してください。</translation>
    </message>
    <message>
        <source>Something may not be read or written by you. Change its permissions, or take it off the list, and back up again.</source>
        <translation>アクセス権がないため、読み書きできないものがあります。アクセス権を変更するかリストから外して、もう一度バックアップしてください。</translation>
    </message>
    <message>
        <source>A program that the backup needs can&apos;t be started. The Tools tab shows which one and lets you choose it.</source>
        <translation>バックアップに必要なプログラムを起動できません。「ツール」タブで、どのプログラムかを確認して選択できます。</translation>
    </message>
    <message>
        <source>Back up again. If it fails again, the messages of the tools tell more (Show messages, on the Tools tab).</source>
        <translation>もう一度バックアップしてください。再び失敗する場合は、ログボタンで表示されるツール自身のメッセージに詳しい情報があります。</translation>
    </message>
</context>
<context>
    <name>ChoicePanel</name>
    <message>
        <source>Question</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>What is to be decided</source>
        <translation>確認する内容</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Backs up folders into encrypted archives, and brings them back. Opens a window;
quillorent-run does the same without one.</source>
        <translation>フォルダーを暗号化アーカイブにバックアップし、復元します。ウィンドウを開きます。
quillorent-run を使うと、ウィンドウなしで同じことができます。</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>このヘルプを表示する。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>バージョンを表示する。</translation>
    </message>
    <message>
        <source>Archives to bring back.</source>
        <translation>復元するアーカイブ。</translation>
    </message>
    <message>
        <source>[archive...]</source>
        <translation>[アーカイブ...]</translation>
    </message>
    <message>
        <source>Open this page: %1.</source>
        <translation>このページを開きます: %1。</translation>
    </message>
    <message>
        <source>page</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>オプション「%1」はありません。</translation>
    </message>
    <message>
        <source>There is no page &quot;%1&quot;.</source>
        <translation>ページ「%1」はありません。</translation>
    </message>
</context>
<context>
    <name>ConcernsPanel01</name>
    <message>
        <source>Before it begins</source>
        <translation>開始の前に</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>Please read this before you go on:</source>
        <translation>続行する前にお読みください:</translation>
    </message>
    <message>
        <source>What to think of before it begins</source>
        <translation>開始の前に確認すること</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Go on anyway</source>
        <translation>それでも続行(&amp;G)</translation>
    </message>
</context>
<context>
    <name>ConsolePanel01</name>
    <message>
        <source>Messages of the last run</source>
        <translation>前回の処理のメッセージ</translation>
    </message>
    <message>
        <source>What the last run reported</source>
        <translation>前回の処理が報告した内容</translation>
    </message>
    <message>
        <source>The last run had nothing to report.</source>
        <translation>前回の処理からの報告はありません。</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>クリア(&amp;L)</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>コピー(&amp;P)</translation>
    </message>
    <message>
        <source>Copy the whole text</source>
        <translation>テキスト全体をコピーします</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>ContentsPanel01</name>
    <message>
        <source>Single files and folders</source>
        <translation>個別のファイルとフォルダー</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>検索(&amp;F)</translation>
    </message>
    <message>
        <source>Part of a name; Return goes to the next one</source>
        <translation>名前の一部を入力します。Enterキーで次の候補に進みます</translation>
    </message>
    <message>
        <source>What the archive holds</source>
        <translation>アーカイブの内容</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Restore what is chosen</source>
        <translation>選んだものを復元(&amp;R)</translation>
    </message>
</context>
<context>
    <name>DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>ウィンドウを表示</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダーを開く</translation>
    </message>
</context>
<context>
    <name>ExtractPanel01</name>
    <message>
        <source>An archive failed its test</source>
        <translation>アーカイブがテストに失敗しました</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Nothing was extracted, because this archive is not whole:</source>
        <translation>このアーカイブは完全ではないため、何も展開しませんでした:</translation>
    </message>
    <message>
        <source>The archive that failed its test</source>
        <translation>テストに失敗したアーカイブ</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>Guide</source>
        <translation>ガイド</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>戻る(&amp;B)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quillorent[*]</source>
        <translation>Quillorent[*]</translation>
    </message>
    <message>
        <source>Pro&amp;file</source>
        <translation>プロファイル(&amp;F)</translation>
    </message>
    <message>
        <source>The profile to load; loading makes it the one in use</source>
        <translation>読み込むプロファイルを選びます。読み込むと使用中になります</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>読み込み(&amp;L)</translation>
    </message>
    <message>
        <source>Use the chosen profile</source>
        <translation>選択したプロファイルを使用します</translation>
    </message>
    <message>
        <source>Make a new profile</source>
        <translation>新しいプロファイルを作成します</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>新しいプロファイル</translation>
    </message>
    <message>
        <source>Make another profile from the chosen one</source>
        <translation>選択したプロファイルから別のプロファイルを作成します</translation>
    </message>
    <message>
        <source>Duplicate the profile</source>
        <translation>プロファイルを複製</translation>
    </message>
    <message>
        <source>Give the chosen profile another name</source>
        <translation>選択したプロファイルの名前を変更します</translation>
    </message>
    <message>
        <source>Rename the profile</source>
        <translation>プロファイル名を変更</translation>
    </message>
    <message>
        <source>Delete the chosen profile</source>
        <translation>選択したプロファイルを削除します</translation>
    </message>
    <message>
        <source>Delete the profile</source>
        <translation>プロファイルを削除</translation>
    </message>
    <message>
        <source>Loading or saving profiles</source>
        <translation>プロファイルの読み込みまたは保存中</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>使用中:</translation>
    </message>
    <message>
        <source>Save all profiles</source>
        <translation>すべてのプロファイルを保存</translation>
    </message>
    <message>
        <source>Options…</source>
        <translation>オプション…</translation>
    </message>
    <message>
        <source>How this profile encrypts, and what the program does by itself</source>
        <translation>このプロファイルの暗号化の方法と、プログラムが自動で行うことを設定します</translation>
    </message>
    <message>
        <source>&amp;Back up</source>
        <translation>バックアップ(&amp;B)</translation>
    </message>
    <message>
        <source>Folders and files to bac&amp;k up</source>
        <translation>バックアップするフォルダーとファイル(&amp;K)</translation>
    </message>
    <message>
        <source>U&amp;ndo</source>
        <translation>元に戻す(&amp;N)</translation>
    </message>
    <message>
        <source>Put back what was removed from the list (Ctrl+Z)</source>
        <translation>リストから外したものを元に戻します（Ctrl+Z）</translation>
    </message>
    <message>
        <source>Folders and files to back up</source>
        <translation>バックアップするフォルダーとファイル</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Add folders and files to the list</source>
        <translation>フォルダーとファイルをリストに追加します</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>外す(&amp;M)</translation>
    </message>
    <message>
        <source>Take the selected entries off the list; the folders themselves stay (Delete)</source>
        <translation>選択した項目をリストから外します。フォルダー自体は残ります（Delete）</translation>
    </message>
    <message>
        <source>Where to</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>Choose where the archives go</source>
        <translation>アーカイブの保存先を選びます</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>選択(&amp;C)…</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>保存先フォルダーを選択</translation>
    </message>
    <message>
        <source>Protected by</source>
        <translation>保護</translation>
    </message>
    <message>
        <source>Chan&amp;ge…</source>
        <translation>変更(&amp;G)…</translation>
    </message>
    <message>
        <source>Go to the passwords</source>
        <translation>「パスワード」タブに移動します</translation>
    </message>
    <message>
        <source>Change the protection</source>
        <translation>保護の方法を変更</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>アーカイブ</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>詳細(&amp;D)</translation>
    </message>
    <message>
        <source>Show or hide how the archives are made</source>
        <translation>アーカイブの作り方の設定を表示または非表示にします</translation>
    </message>
    <message>
        <source>Details of the archives</source>
        <translation>アーカイブの詳細</translation>
    </message>
    <message>
        <source>Spl&amp;it each archive into files of</source>
        <translation>アーカイブを次のサイズに分割(&amp;I)</translation>
    </message>
    <message>
        <source>Make several files of this size, called volumes, instead of one large one: for discs, or for places that take no large files. All of them are needed to restore</source>
        <translation>1つの大きなファイルの代わりに、このサイズの複数のファイル（分割ファイル）を作ります。光ディスクや、大きなファイルを置けない場所に保存するときに使います。復元にはすべての分割ファイルが必要です</translation>
    </message>
    <message>
        <source>Largest size of a file</source>
        <translation>ファイルの最大サイズ</translation>
    </message>
    <message>
        <source>With its unit, such as 700 MB or 4.7 GB; a number alone means MB</source>
        <translation>700 MBや4.7 GBのように単位を付けて入力します。数字だけの場合はMBになります</translation>
    </message>
    <message>
        <source>Largest size of a file, arrows</source>
        <translation>ファイルの最大サイズ（矢印ボタン）</translation>
    </message>
    <message>
        <source>Usual sizes</source>
        <translation>一般的なサイズ</translation>
    </message>
    <message>
        <source>Make them smaller before encrypting</source>
        <translation>暗号化の前に小さくする</translation>
    </message>
    <message>
        <source>Makes archives of documents, mail and the like much smaller; the size of an archive then tells a little of what it holds</source>
        <translation>文書やメールなどのアーカイブがずっと小さくなります。ただし、アーカイブのサイズから内容が少し推測できるようになります</translation>
    </message>
    <message>
        <source>Found by packing samples of what is on the list</source>
        <translation>リストにあるものの一部を実際に圧縮して見積もった値です</translation>
    </message>
    <message>
        <source>Date archives like their newe&amp;st file</source>
        <translation>アーカイブの日付を最新ファイルに合わせる(&amp;S)</translation>
    </message>
    <message>
        <source>Without this, an archive has the date of the backup</source>
        <translation>オフの場合、アーカイブの日付はバックアップした日時になります</translation>
    </message>
    <message>
        <source>Date the encrypted file in them the same way</source>
        <translation>中の暗号化ファイルの日付も同じにする</translation>
    </message>
    <message>
        <source>How the last backup ended</source>
        <translation>前回のバックアップの結果</translation>
    </message>
    <message>
        <source>&amp;Open folder</source>
        <translation>フォルダーを開く(&amp;O)</translation>
    </message>
    <message>
        <source>Show the archives in the file manager</source>
        <translation>アーカイブをファイルマネージャーで表示します</translation>
    </message>
    <message>
        <source>Try a restore</source>
        <translation>復元を試す</translation>
    </message>
    <message>
        <source>Only what came back is a backup: bring something back while you still have it</source>
        <translation>復元できてこそバックアップです。元のデータがあるうちに、何か復元してみてください</translation>
    </message>
    <message>
        <source>Back &amp;up now</source>
        <translation>今すぐバックアップ(&amp;U)</translation>
    </message>
    <message>
        <source>R&amp;estore</source>
        <translation>復元(&amp;E)</translation>
    </message>
    <message>
        <source>Backups found</source>
        <translation>見つかったバックアップ</translation>
    </message>
    <message>
        <source>To be bro&amp;ught back</source>
        <translation>復元するアーカイブ(&amp;U)</translation>
    </message>
    <message>
        <source>Archives to be brought back</source>
        <translation>復元するアーカイブ</translation>
    </message>
    <message>
        <source>Add archives from anywhere; of one in several parts the first is enough</source>
        <translation>任意の場所のアーカイブを追加します。分割されたものは最初のファイルだけで十分です</translation>
    </message>
    <message>
        <source>Sin&amp;gle files…</source>
        <translation>個別のファイル(&amp;G)…</translation>
    </message>
    <message>
        <source>See what the selected archive holds, and bring back only what you choose of it</source>
        <translation>選択したアーカイブの内容を表示し、選んだものだけを復元します</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>外す</translation>
    </message>
    <message>
        <source>Take the selected archives off the list; the files themselves stay (Delete)</source>
        <translation>選択したアーカイブをリストから外します。ファイル自体は残ります（Delete）</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>クリア(&amp;C)</translation>
    </message>
    <message>
        <source>Take all archives off the list</source>
        <translation>すべてのアーカイブをリストから外します</translation>
    </message>
    <message>
        <source>To look for single files, the whole archive has to be decrypted: that needs the password, and about as long as bringing back all of it.</source>
        <translation>個別のファイルを探すには、アーカイブ全体を復号する必要があります。パスワードが必要で、全体を復元するのと同じくらいの時間がかかります。</translation>
    </message>
    <message>
        <source>&amp;Into folder</source>
        <translation>展開先(&amp;I)</translation>
    </message>
    <message>
        <source>Choose where the contents go</source>
        <translation>内容の展開先を選びます</translation>
    </message>
    <message>
        <source>Use ~/Restored</source>
        <translation>~/Restored を使う</translation>
    </message>
    <message>
        <source>A folder of the name &quot;Restored&quot; in your home folder; it is made if it isn&apos;t there yet</source>
        <translation>ホームフォルダー内の「Restored」という名前のフォルダーです。まだない場合は作成されます</translation>
    </message>
    <message>
        <source>Use the folder &quot;Restored&quot; in your home folder</source>
        <translation>ホームフォルダー内のフォルダー「Restored」を使用</translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation>選択(&amp;S)…</translation>
    </message>
    <message>
        <source>Choose the folder that everything goes to</source>
        <translation>すべての展開先となるフォルダーを選択</translation>
    </message>
    <message>
        <source>H&amp;ow it is encrypted</source>
        <translation>暗号化方式(&amp;O)</translation>
    </message>
    <message>
        <source>With the password, by AES</source>
        <translation>パスワード（AES）</translation>
    </message>
    <message>
        <source>With the password, by Blowfish</source>
        <translation>パスワード（Blowfish）</translation>
    </message>
    <message>
        <source>With the password, by Triple DES</source>
        <translation>パスワード（Triple DES）</translation>
    </message>
    <message>
        <source>For a certificate, by S/MIME</source>
        <translation>証明書（S/MIME）</translation>
    </message>
    <message>
        <source>Automatic: as the archive&apos;s name tells</source>
        <translation>自動（アーカイブ名から判断）</translation>
    </message>
    <message>
        <source>How bringing back ended last time</source>
        <translation>前回の復元の結果</translation>
    </message>
    <message>
        <source>Open fol&amp;der</source>
        <translation>フォルダーを開く(&amp;D)</translation>
    </message>
    <message>
        <source>Show what was brought back, in the file manager</source>
        <translation>復元したものをファイルマネージャーで表示します</translation>
    </message>
    <message>
        <source>Restore &amp;now</source>
        <translation>今すぐ復元(&amp;N)</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>パスワード(&amp;W)</translation>
    </message>
    <message>
        <source>Protect arch&amp;ives with</source>
        <translation>アーカイブの保護(&amp;I)</translation>
    </message>
    <message>
        <source>Typed password</source>
        <translation>入力するパスワード</translation>
    </message>
    <message>
        <source>Password from the keychain</source>
        <translation>キーリングのパスワード</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>証明書</translation>
    </message>
    <message>
        <source>Passwor&amp;d</source>
        <translation>パスワード(&amp;D)</translation>
    </message>
    <message>
        <source>Password, hidden</source>
        <translation>パスワード（非表示）</translation>
    </message>
    <message>
        <source>Password, shown</source>
        <translation>パスワード（表示）</translation>
    </message>
    <message>
        <source>Once &amp;more</source>
        <translation>再入力(&amp;M)</translation>
    </message>
    <message>
        <source>Where no archive is there yet that tells a mistyped password</source>
        <translation>打ち間違いを確かめられるアーカイブが、まだないときに使います</translation>
    </message>
    <message>
        <source>Password, once more</source>
        <translation>パスワード（再入力）</translation>
    </message>
    <message>
        <source>Hide the p&amp;assword</source>
        <translation>パスワードを隠す(&amp;A)</translation>
    </message>
    <message>
        <source>The two differ: one of them is mistyped.</source>
        <translation>2つのパスワードが一致しません。どちらかが打ち間違いです。</translation>
    </message>
    <message>
        <source>The keychain is where your desktop keeps passwords; your log-in opens it. Fetch takes the password out of it, Store puts it in. It is lost together with your account: write it down all the same.</source>
        <translation>キーリングは、デスクトップ環境がパスワードを保管する場所で、ログインすると開きます。「取得」はそこからパスワードを取り出し、「保存」はそこに入れます。アカウントがなくなるとキーリングも失われるので、パスワードは必ず別に書き留めておいてください。</translation>
    </message>
    <message>
        <source>Acco&amp;unt</source>
        <translation>アカウント(&amp;U)</translation>
    </message>
    <message>
        <source>The name that the keychain keeps the password under</source>
        <translation>キーリングがパスワードを保管するときの名前です</translation>
    </message>
    <message>
        <source>Fet&amp;ch</source>
        <translation>取得(&amp;C)</translation>
    </message>
    <message>
        <source>Fetch this account&apos;s password from the keychain</source>
        <translation>このアカウントのパスワードをキーリングから取得します</translation>
    </message>
    <message>
        <source>Password of the keychain, hidden</source>
        <translation>キーリングのパスワード（非表示）</translation>
    </message>
    <message>
        <source>Password of the keychain, shown</source>
        <translation>キーリングのパスワード（表示）</translation>
    </message>
    <message>
        <source>&amp;Store</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Store the password in the keychain; one that is there already is never replaced</source>
        <translation>パスワードをキーリングに保存します。すでにあるパスワードは置き換えられません</translation>
    </message>
    <message>
        <source>Hide this p&amp;assword</source>
        <translation>このパスワードを隠す(&amp;A)</translation>
    </message>
    <message>
        <source>Asking the keychain</source>
        <translation>キーリングに問い合わせています</translation>
    </message>
    <message>
        <source>U&amp;nlock…</source>
        <translation>ロック解除(&amp;N)…</translation>
    </message>
    <message>
        <source>Let the keychain ask for its password</source>
        <translation>キーリングのパスワードを入力する画面を開きます</translation>
    </message>
    <message>
        <source>Careful: the text that counts is not the one you see here. The switch &quot;Hide the password&quot; of the typed password decides between the hidden and the shown text; set it like the one above, on the page &quot;Typed password&quot;.</source>
        <translation>ご注意ください。実際に使われるのは、ここに表示されている文字列ではありません。隠した欄と表示した欄のどちらが使われるかは、「入力するパスワード」ページの「パスワードを隠す」で決まります。上の設定と同じにしてください。</translation>
    </message>
    <message>
        <source>Certific&amp;ate</source>
        <translation>証明書(&amp;A)</translation>
    </message>
    <message>
        <source>The certificate of whoever is to open the archives</source>
        <translation>アーカイブを開く人の証明書です</translation>
    </message>
    <message>
        <source>Choose the certificate</source>
        <translation>証明書を選択</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>表示(&amp;S)</translation>
    </message>
    <message>
        <source>Show the certificate as text, among the messages</source>
        <translation>証明書の内容を、メッセージの画面にテキストで表示します</translation>
    </message>
    <message>
        <source>Show the certificate</source>
        <translation>証明書を表示</translation>
    </message>
    <message>
        <source>Private &amp;key</source>
        <translation>秘密鍵(&amp;K)</translation>
    </message>
    <message>
        <source>Needed to restore only; the file that belongs to the certificate</source>
        <translation>復元のときだけ必要な、証明書と対になるファイルです</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Choose the private key</source>
        <translation>秘密鍵を選択</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Show the private key as text, among the messages, where everybody can read it</source>
        <translation>秘密鍵の内容を、誰でも読めるメッセージの画面にテキストで表示します</translation>
    </message>
    <message>
        <source>Show the private key</source>
        <translation>秘密鍵を表示</translation>
    </message>
    <message>
        <source>Two files instead of a password: the certificate locks, and only the private key that belongs to it opens. Backups need the certificate alone.</source>
        <translation>パスワードの代わりに2つのファイルを使います。証明書で鍵をかけ、対になる秘密鍵だけがそれを開けます。バックアップには証明書だけが必要です。</translation>
    </message>
    <message>
        <source>Without this password, or the private key that belongs to the certificate, nobody can open the archives, you included.</source>
        <translation>このパスワード、または証明書と対になる秘密鍵がなければ、あなた自身を含め、誰もアーカイブを開けません。</translation>
    </message>
    <message>
        <source>S&amp;ynchronise</source>
        <translation>同期(&amp;Y)</translation>
    </message>
    <message>
        <source>Folders and files to synchronise</source>
        <translation>同期するフォルダーとファイル</translation>
    </message>
    <message>
        <source>Add folders and files to synchronise</source>
        <translation>同期するフォルダーとファイルを追加</translation>
    </message>
    <message>
        <source>Take the selected entries off the list; the files themselves stay (Delete)</source>
        <translation>選択した項目をリストから外します。ファイル自体は残ります（Delete）</translation>
    </message>
    <message>
        <source>Remove entries from synchronisation</source>
        <translation>項目を同期から外す</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>同期元</translation>
    </message>
    <message>
        <source>Kept with the profile; what is copied is the list above</source>
        <translation>プロファイルと一緒に保存されるだけの欄です。コピーされるのは上のリストです</translation>
    </message>
    <message>
        <source>For your notes; what is copied is the list above</source>
        <translation>メモ用の欄です。コピーされるのは上のリストです</translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation>同期元フォルダーを選択</translation>
    </message>
    <message>
        <source>&amp;Destination</source>
        <translation>同期先(&amp;D)</translation>
    </message>
    <message>
        <source>Choose or type the folder that the files go to</source>
        <translation>ファイルのコピー先となるフォルダーを選ぶか、入力します</translation>
    </message>
    <message>
        <source>Choose the destination of the synchronisation</source>
        <translation>同期先を選択</translation>
    </message>
    <message>
        <source>On a server</source>
        <translation>サーバー上</translation>
    </message>
    <message>
        <source>The destination is a folder on another computer, reached over an encrypted connection (ssh)</source>
        <translation>同期先は別のコンピューターのフォルダーで、暗号化された接続（ssh）を使います</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>ユーザー(&amp;U)</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>サーバー</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>By date; what is newer at the destination stays</source>
        <translation>日付で比較（同期先の新しいファイルは残す）</translation>
    </message>
    <message>
        <source>By content; every file is read</source>
        <translation>内容で比較（すべてのファイルを読み取る）</translation>
    </message>
    <message>
        <source>Deletion</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Delete at the dest&amp;ination what is not here</source>
        <translation>こちらにないものを同期先から削除(&amp;I)</translation>
    </message>
    <message>
        <source>Inside the listed folders only</source>
        <translation>リストにあるフォルダーの中だけが対象です</translation>
    </message>
    <message>
        <source>Remove files here once they are at the destination</source>
        <translation>同期先に届いたファイルをこちらから削除</translation>
    </message>
    <message>
        <source>This moves the files instead of copying them</source>
        <translation>コピーではなく、ファイルを移動することになります</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>How the last synchronisation ended</source>
        <translation>前回の同期の結果</translation>
    </message>
    <message>
        <source>Preview…</source>
        <translation>プレビュー…</translation>
    </message>
    <message>
        <source>Show what would be copied and deleted; nothing is changed</source>
        <translation>コピーまたは削除されるものを表示します。何も変更されません</translation>
    </message>
    <message>
        <source>Synchronise &amp;now</source>
        <translation>今すぐ同期(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>Programs that do the work. Press Choose, or double-click a path to change it.</source>
        <translation>実際の処理を行うプログラムです。変更するには「選択」を押すか、パスをダブルクリックしてください。</translation>
    </message>
    <message>
        <source>External tools</source>
        <translation>外部ツール</translation>
    </message>
    <message>
        <source>Saving settings</source>
        <translation>設定を保存中</translation>
    </message>
    <message>
        <source>Save settin&amp;gs</source>
        <translation>設定を保存(&amp;G)</translation>
    </message>
    <message>
        <source>Save the paths of the tools and the other settings, and check the tools again</source>
        <translation>ツールのパスとその他の設定を保存し、ツールを再確認します</translation>
    </message>
    <message>
        <source>Show &amp;messages</source>
        <translation>メッセージを表示(&amp;M)</translation>
    </message>
    <message>
        <source>What the programs said in the last run, where something failed</source>
        <translation>前回の処理で何か失敗したとき、プログラムが出したメッセージです</translation>
    </message>
    <message>
        <source>Programs that are still at work</source>
        <translation>まだ動作中のプログラム</translation>
    </message>
    <message>
        <source>End them</source>
        <translation>終了させる</translation>
    </message>
    <message>
        <source>End the programs that a failed run has left at work</source>
        <translation>失敗した処理が残した、動作中のプログラムを終了させます</translation>
    </message>
    <message>
        <source>Files that are not encrypted</source>
        <translation>暗号化されていないファイル</translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Remove these files; the folders that they were made from stay</source>
        <translation>これらのファイルを削除します。元のフォルダーは残ります</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>プロファイル(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>実行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>新規(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>複製(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>名前の変更(&amp;R)…</translation>
    </message>
    <message>
        <source>D&amp;elete…</source>
        <translation>削除(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Load the chosen profile</source>
        <translation>選択したプロファイルを読み込む(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save all profiles</source>
        <translation>すべてのプロファイルを保存(&amp;S)</translation>
    </message>
    <message>
        <source>Open this profile at start-&amp;up</source>
        <translation>起動時にこのプロファイルを開く(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Options…</source>
        <translation>オプション(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Back up now</source>
        <translation>今すぐバックアップ(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Restore now</source>
        <translation>今すぐ復元(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Synchronise now</source>
        <translation>今すぐ同期(&amp;S)</translation>
    </message>
    <message>
        <source>Show what synchronising would &amp;do…</source>
        <translation>同期の内容をプレビュー(&amp;D)…</translation>
    </message>
    <message>
        <source>S&amp;top…</source>
        <translation>中止(&amp;T)…</translation>
    </message>
    <message>
        <source>Add &amp;folders to back up…</source>
        <translation>バックアップするフォルダーを追加(&amp;F)…</translation>
    </message>
    <message>
        <source>Add &amp;archives to restore…</source>
        <translation>復元するアーカイブを追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Save settings and &amp;check the programs</source>
        <translation>設定を保存してプログラムを確認(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>復元(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>パスワード(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Synchronise</source>
        <translation>同期(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Messages of the last run</source>
        <translation>前回の処理のメッセージ(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>ガイド(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Recovery without this program</source>
        <translation>このプログラムを使わない復元(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;About Quillorent</source>
        <translation>Quillorentについて(&amp;A)</translation>
    </message>
    <message>
        <source>A backup needs more room than its archives do in the end: what is packed and what is encrypted lie here side by side for a while, together about two and a half times as much as the folder</source>
        <translation>バックアップ中は、完成したアーカイブよりも多くの容量が必要です。まとめたものと暗号化したものが一時的に両方置かれ、合わせてフォルダーの約2.5倍になります</translation>
    </message>
    <message>
        <source>Of an archive that was made in several parts, the first one is enough; the others only have to be in the same folder</source>
        <translation>分割されたアーカイブは、最初のファイルだけ追加してください。残りは同じフォルダーにあれば使われます</translation>
    </message>
    <message>
        <source>The name of an archive tells how it was encrypted; choose it here only where an archive was renamed. AES, Blowfish and Triple DES are ways to do it with a password; S/MIME is the way to do it for a certificate, and takes the private key that belongs to it. Both are chosen where passwords are.</source>
        <translation>暗号化方式はアーカイブの名前からわかります。アーカイブの名前が変更されている場合だけ、ここで選んでください。AES、Blowfish、Triple DESはパスワードで暗号化する方式です。S/MIMEは証明書を使って暗号化する方式で、対応する秘密鍵が必要です。パスワードと証明書は「パスワード」タブで設定します。</translation>
    </message>
</context>
<context>
    <name>MessagePanel</name>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>問題の内容</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>NamePanel</name>
    <message>
        <source>Profile</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>New &amp;name</source>
        <translation>新しい名前(&amp;N)</translation>
    </message>
    <message>
        <source>Begin with my &amp;usual folders (documents, pictures, desktop)</source>
        <translation>よく使うフォルダー（ドキュメント、画像、デスクトップ）から始める(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>now: the last one of the list</source>
        <translation>現在: リストの最後のもの</translation>
    </message>
    <message>
        <source>now: %1</source>
        <translation>現在: %1</translation>
    </message>
    <message>
        <source>Can&apos;t start</source>
        <translation>開始できません</translation>
    </message>
    <message>
        <source>Certificate not accepted</source>
        <translation>証明書を使用できません</translation>
    </message>
    <message>
        <source>Private key not accepted</source>
        <translation>秘密鍵を使用できません</translation>
    </message>
    <message>
        <source>Can&apos;t save</source>
        <translation>保存できません</translation>
    </message>
    <message>
        <source>Settings and profiles</source>
        <translation>設定とプロファイル</translation>
    </message>
    <message>
        <source>Programs are missing</source>
        <translation>プログラムが足りません</translation>
    </message>
    <message>
        <source>Changed by others, too</source>
        <translation>ほかでも変更されています</translation>
    </message>
    <message>
        <source>&amp;Save what I changed</source>
        <translation>自分の変更を保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Take what is in the file</source>
        <translation>ファイルの内容を使う(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>再試行(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Save a copy...</source>
        <translation>コピーを保存(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Quit without saving</source>
        <translation>保存せずに終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Rename a profile</source>
        <translation>プロファイル名の変更</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>変更(&amp;R)</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>新しいプロファイル</translation>
    </message>
    <message>
        <source>C&amp;reate</source>
        <translation>作成(&amp;R)</translation>
    </message>
    <message>
        <source>Duplicate a profile</source>
        <translation>プロファイルの複製</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>複製(&amp;U)</translation>
    </message>
    <message>
        <source>The two are independent of each other once the profiles are saved and the program is started again. Until then a change in one is a change in both.</source>
        <translation>プロファイルを保存してプログラムを起動し直すと、2つは互いに独立します。それまでは、一方を変更すると他方も変更されます。</translation>
    </message>
    <message>
        <source>Name not accepted</source>
        <translation>この名前は使えません</translation>
    </message>
</context>
<context>
    <name>PreferencesPanel01</name>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>This profile</source>
        <translation>このプロファイル</translation>
    </message>
    <message>
        <source>With a pass&amp;word, encrypt by</source>
        <translation>パスワードでの暗号化方式(&amp;W)</translation>
    </message>
    <message>
        <source>AES is the right one; the others are there for whoever must open the archives with old programs</source>
        <translation>通常はAESを使用します。ほかの方式は、古いプログラムでアーカイブを開く必要がある人のためのものです</translation>
    </message>
    <message>
        <source>AES, 256 bits (recommended)</source>
        <translation>AES、256ビット（推奨）</translation>
    </message>
    <message>
        <source>Blowfish (old)</source>
        <translation>Blowfish（旧式）</translation>
    </message>
    <message>
        <source>Triple DES (old)</source>
        <translation>Triple DES（旧式）</translation>
    </message>
    <message>
        <source>With a ce&amp;rtificate, encrypt by</source>
        <translation>証明書での暗号化方式(&amp;R)</translation>
    </message>
    <message>
        <source>S/MIME is the standard by which mail is encrypted for a certificate; other programs can open it</source>
        <translation>S/MIMEは、メールを証明書で暗号化するための標準です。ほかのプログラムでも開けます</translation>
    </message>
    <message>
        <source>AES, 256 bits, as in mail (S/MIME)</source>
        <translation>AES、256ビット、メールと同じ形式（S/MIME）</translation>
    </message>
    <message>
        <source>Compress before encryptin&amp;g</source>
        <translation>暗号化の前に圧縮(&amp;G)</translation>
    </message>
    <message>
        <source>Makes archives of documents, mail and the like much smaller; the size of an archive then tells a little of what it holds</source>
        <translation>文書やメールなどのアーカイブがずっと小さくなります。ただし、アーカイブのサイズから内容が少し推測できるようになります</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t ask when the destination is not empty</source>
        <translation>保存先が空でなくても確認しない(&amp;D)</translation>
    </message>
    <message>
        <source>Archives of the same name are replaced without a question</source>
        <translation>同じ名前のアーカイブは、確認なしで置き換えられます</translation>
    </message>
    <message>
        <source>The program</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Open this profile at &amp;start-up</source>
        <translation>起動時にこのプロファイルを開く(&amp;S)</translation>
    </message>
    <message>
        <source>Save, and open the profile in use when the program starts</source>
        <translation>保存し、今後はプログラムの起動時に使用中のプロファイルを開きます</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>保存中</translation>
    </message>
    <message>
        <source>Save changes when &amp;quitting</source>
        <translation>終了時に変更を保存(&amp;Q)</translation>
    </message>
    <message>
        <source>Without this, the program asks before changes that were not saved are lost</source>
        <translation>オフの場合、保存していない変更が失われる前に確認します</translation>
    </message>
    <message>
        <source>&amp;Look for a newer version at each start</source>
        <translation>起動のたびに新しいバージョンを確認(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Programs that do the work…</source>
        <translation>処理を行うプログラム(&amp;P)…</translation>
    </message>
    <message>
        <source>Which archiver, encryption tool and copying tool are used, and whether they are in order</source>
        <translation>使用するアーカイバー、暗号化ツール、コピーツールと、その状態を表示します</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>PreviewPanel01</name>
    <message>
        <source>What would be copied and deleted</source>
        <translation>コピーまたは削除されるもの</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Synchronise</source>
        <translation>同期(&amp;S)</translation>
    </message>
    <message>
        <source>Do what is shown</source>
        <translation>表示されている内容を実行します</translation>
    </message>
</context>
<context>
    <name>ProfilePanel04</name>
    <message>
        <source>Delete a profile</source>
        <translation>プロファイルの削除</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>このプロファイルを削除しますか？</translation>
    </message>
    <message>
        <source>Folders and archives stay as they are; only the list of folders and the options are gone, for good once the profiles are saved.</source>
        <translation>フォルダーとアーカイブはそのまま残ります。なくなるのはフォルダーのリストとオプションだけですが、プロファイルを保存すると元に戻せません。</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Time: %1</source>
        <translation>時間: %1</translation>
    </message>
    <message>
        <source>read: %1</source>
        <translation>読み取り: %1</translation>
    </message>
    <message>
        <source>more at the destination: %1</source>
        <translation>同期先の増加: %1</translation>
    </message>
</context>
<context>
    <name>ProgressFigures</name>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>ProgressPanel01</name>
    <message>
        <source>Backup</source>
        <translation>バックアップ</translation>
    </message>
    <message>
        <source>Backing up…</source>
        <translation>バックアップしています…</translation>
    </message>
    <message>
        <source>Measuring the folders…</source>
        <translation>フォルダーのサイズを調べています…</translation>
    </message>
    <message>
        <source>Progress of the backup</source>
        <translation>バックアップの進行状況</translation>
    </message>
    <message>
        <source>Folders and how far they are</source>
        <translation>フォルダーとその進行状況</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Stop the backup; archives that are finished stay</source>
        <translation>バックアップを中止します。完成したアーカイブは残ります</translation>
    </message>
</context>
<context>
    <name>ProgressPanel02</name>
    <message>
        <source>Restore</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>Progress of restoring</source>
        <translation>復元の進行状況</translation>
    </message>
    <message>
        <source>Archives and how far they are</source>
        <translation>アーカイブとその進行状況</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Stop; what is restored already stays, and is not complete</source>
        <translation>中止します。すでに復元されたものは残りますが、完全ではありません</translation>
    </message>
</context>
<context>
    <name>ProgressPanel03</name>
    <message>
        <source>Synchronisation</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>The synchronisation goes on</source>
        <translation>同期しています</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Stop; what is copied already stays</source>
        <translation>中止します。すでにコピーされたものは残ります</translation>
    </message>
</context>
<context>
    <name>Protection</name>
    <message>
        <source>Typed password</source>
        <translation>入力するパスワード</translation>
    </message>
    <message>
        <source>Password from the keychain – please look at the Password tab</source>
        <translation>キーリングのパスワード – 「パスワード」タブを確認してください</translation>
    </message>
    <message>
        <source>Password from the keychain – no account chosen yet</source>
        <translation>キーリングのパスワード – アカウントが未選択です</translation>
    </message>
    <message>
        <source>Password from the keychain – not fetched yet</source>
        <translation>キーリングのパスワード – まだ取得されていません</translation>
    </message>
    <message>
        <source>Password typed for the keychain – not stored in it</source>
        <translation>キーリング用に入力したパスワード – キーリングには保存されていません</translation>
    </message>
    <message>
        <source>Password from the keychain, account %1</source>
        <translation>キーリングのパスワード（アカウント: %1）</translation>
    </message>
    <message>
        <source>Certificate – none chosen yet</source>
        <translation>証明書 – 未選択です</translation>
    </message>
    <message>
        <source>Certificate: %1</source>
        <translation>証明書: %1</translation>
    </message>
    <message>
        <source>Password – none typed yet</source>
        <translation>パスワード – まだ入力されていません</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Choose</source>
        <translation>選択(&amp;C)</translation>
    </message>
</context>
<context>
    <name>StopQuestion</name>
    <message>
        <source>Synchronisation in progress</source>
        <translation>同期の実行中</translation>
    </message>
    <message>
        <source>Folders are being synchronised.</source>
        <translation>フォルダーを同期しています。</translation>
    </message>
    <message>
        <source>Stop the synchronisation?</source>
        <translation>同期を中止しますか？</translation>
    </message>
    <message>
        <source>What is copied already stays, and the next run goes on from there.</source>
        <translation>すでにコピーされたものは残り、次回はその続きから始まります。</translation>
    </message>
    <message>
        <source>Restoring in progress</source>
        <translation>復元の実行中</translation>
    </message>
    <message>
        <source>Files are being restored.</source>
        <translation>ファイルを復元しています。</translation>
    </message>
    <message>
        <source>Stop restoring?</source>
        <translation>復元を中止しますか？</translation>
    </message>
    <message>
        <source>What is restored already stays, and is not complete.</source>
        <translation>すでに復元されたものは残りますが、完全ではありません。</translation>
    </message>
    <message>
        <source>Backup in progress</source>
        <translation>バックアップの実行中</translation>
    </message>
    <message>
        <source>A backup is running.</source>
        <translation>バックアップを実行しています。</translation>
    </message>
    <message>
        <source>Stop the backup?</source>
        <translation>バックアップを中止しますか？</translation>
    </message>
    <message>
        <source>Archives that are finished stay. Folders that are not finished keep the archive of the backup before this one.</source>
        <translation>完成したアーカイブは残ります。完了していないフォルダーについては、前回のバックアップのアーカイブが残ります。</translation>
    </message>
    <message>
        <source>Quitting stops that. %1</source>
        <translation>終了すると、これは中止されます。%1</translation>
    </message>
    <message>
        <source>&amp;Stop and quit</source>
        <translation>中止して終了(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>中止(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Keep running</source>
        <translation>続ける(&amp;K)</translation>
    </message>
    <message>
        <source>Looking into an archive</source>
        <translation>アーカイブの確認中</translation>
    </message>
    <message>
        <source>An archive is being looked into.</source>
        <translation>アーカイブの中を調べています。</translation>
    </message>
    <message>
        <source>Stop looking into the archive?</source>
        <translation>アーカイブの確認を中止しますか？</translation>
    </message>
    <message>
        <source>Nothing of yours has been changed.</source>
        <translation>あなたのファイルは変更されていません。</translation>
    </message>
</context>
<context>
    <name>UpdatePanel01</name>
    <message>
        <source>A newer version</source>
        <translation>新しいバージョン</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>変更点</translation>
    </message>
    <message>
        <source>Its makers say nothing of what is new.</source>
        <translation>変更点についての説明はありません。</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>後で(&amp;L)</translation>
    </message>
    <message>
        <source>Open the &amp;download page</source>
        <translation>ダウンロードページを開く(&amp;D)</translation>
    </message>
</context>
<context>
    <name>WarningPanel02</name>
    <message>
        <source>The extraction folder is not empty</source>
        <translation>展開先フォルダーは空ではありません</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>The extraction folder is not empty:</source>
        <translation>展開先フォルダーは空ではありません:</translation>
    </message>
    <message>
        <source>Extraction folder</source>
        <translation>展開先フォルダー</translation>
    </message>
    <message>
        <source>Files of the same name and place are replaced, others stay as they are.</source>
        <translation>同じ場所にある同じ名前のファイルは置き換えられます。ほかのファイルはそのまま残ります。</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Extract anyway</source>
        <translation>それでも展開(&amp;E)</translation>
    </message>
</context>
<context>
    <name>WarningPanel03</name>
    <message>
        <source>The destination is not empty</source>
        <translation>保存先は空ではありません</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>The destination folder is not empty:</source>
        <translation>保存先フォルダーは空ではありません:</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>保存先フォルダー</translation>
    </message>
    <message>
        <source>What is there</source>
        <translation>そこにあるもの</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Back up anyway</source>
        <translation>それでもバックアップ(&amp;B)</translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message>
        <source>Easy to guess. Five or six words that have nothing to do with each other are better.</source>
        <translation>推測されやすいパスワードです。互いに関係のない単語を5～6個並べると、もっと安全になります。</translation>
    </message>
    <message>
        <source>Hard to guess. One more word makes it strong.</source>
        <translation>推測されにくいパスワードです。単語をもう1つ加えると、さらに強くなります。</translation>
    </message>
    <message>
        <source>Very hard to guess. Is it written down in a safe place? A mistyped or forgotten password is a lost backup.</source>
        <translation>とても推測されにくいパスワードです。安全な場所に書き留めましたか？打ち間違えたり忘れたりすると、バックアップは失われます。</translation>
    </message>
    <message>
        <source>Use “%1”, which is chosen but not in use yet</source>
        <translation>「%1」を使用します。選択されていますが、まだ使用中ではありません</translation>
    </message>
    <message>
        <source>Use the chosen profile; it is in use already</source>
        <translation>選択したプロファイルを使用します。すでに使用中です</translation>
    </message>
</context>
<context>
    <name>Wording</name>
    <message>
        <source>today at %1</source>
        <translation>今日 %1</translation>
    </message>
    <message>
        <source>yesterday at %1</source>
        <translation>昨日 %1</translation>
    </message>
    <message>
        <source>on %1 at %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1分</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1時間%2分</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>The program has been moved. Its own tools are used from where they are now, in “%1”: %2.</source>
        <translation>プログラムが移動されました。付属のツールは、現在の場所「%1」にあるものを使用します: %2。</translation>
    </message>
</context>
<context>
    <name>app</name>
    <message>
        <source>%1 of %2 programs that do the work are missing or wrong. The Tools tab shows which: choose the right program there, or install it.</source>
        <translation>処理を行う%2個のプログラムのうち%1個が、見つからないか正しくありません。「ツール」タブでどれかを確認し、正しいプログラムを選択するか、インストールしてください。</translation>
    </message>
    <message>
        <source>Still at work: %1.</source>
        <translation>まだ動作中: %1。</translation>
    </message>
    <message>
        <source>… and %1 more.</source>
        <translation>… ほか%1件。</translation>
    </message>
    <message>
        <source>Files are being restored, and would not be complete.</source>
        <translation>ファイルを復元しています。今終了すると不完全になります。</translation>
    </message>
    <message>
        <source>Folders are being synchronised, and would not be in step.</source>
        <translation>フォルダーを同期しています。今終了すると内容がそろいません。</translation>
    </message>
    <message>
        <source>A backup is running, and would not be complete.</source>
        <translation>バックアップを実行しています。今終了すると不完全になります。</translation>
    </message>
    <message>
        <source>Cancelled before anything was done.</source>
        <translation>何も行わないうちにキャンセルされました。</translation>
    </message>
    <message>
        <source>Another profile was opened while the keychain was asked. Start again.</source>
        <translation>キーリングへの問い合わせ中に、別のプロファイルが開かれました。もう一度開始してください。</translation>
    </message>
    <message>
        <source>The %1 can&apos;t be read:
%2
Their file stays as it is. Repair it, or move it away: the next start makes a new one.</source>
        <translation>%1を読み取れません:
%2
ファイルはそのまま残ります。修復するか、別の場所に移してください。移すと、次回の起動時に新しいファイルが作成されます。</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Something is running already, or about to end. Try again when it has ended.</source>
        <translation>処理が実行中か、まもなく終わるところです。終わってからもう一度お試しください。</translation>
    </message>
    <message>
        <source>A run that was broken off has left this, and it is not encrypted:
%1</source>
        <translation>中断された処理が残した、暗号化されていないファイル:
%1</translation>
    </message>
    <message>
        <source>Something is running just now. Remove these files when it has ended.</source>
        <translation>処理が実行中です。終わってからこれらのファイルを削除してください。</translation>
    </message>
    <message>
        <source>An archive is being looked into.</source>
        <translation>アーカイブの中を調べています。</translation>
    </message>
</context>
<context>
    <name>backup</name>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while: the backup will fail. Rename it.</source>
        <translation>「%1」はフォルダーですが、一時的に同じ名前のファイルが必要なため、このままではバックアップは失敗します。フォルダーの名前を変更してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there, and its name is needed for a while. It may be yours, or left in clear by a run that was interrupted. It will be called &quot;%2&quot;, and stay.</source>
        <translation>「%1」がすでにありますが、この名前が一時的に必要です。あなたのファイルか、中断された処理が暗号化されないまま残したものかもしれません。名前を「%2」に変えて残します。</translation>
    </message>
    <message>
        <source>These archives are in &quot;%1&quot; and will be replaced, other files stay: %2.</source>
        <translation>「%1」にある次のアーカイブは置き換えられ、ほかのファイルは残ります: %2。</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is not empty. Other files stay as they are.</source>
        <translation>保存先「%1」は空ではありません。ほかのファイルはそのまま残ります。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not open with this password: it is not the password of the archives there, or this one is damaged. If it is mistyped, stop and correct it. If you go on, the new archives open with this password only.</source>
        <translation>「%1」はこのパスワードでは開けません。そこにあるアーカイブのパスワードと違うか、このアーカイブが破損しています。打ち間違いであれば、中止して直してください。続行すると、新しいアーカイブはこのパスワードでしか開けません。</translation>
    </message>
    <message>
        <source>The password was typed only once, and nothing tells whether it is mistyped. Type it again, in the second field on the Password tab: nobody can open what a mistyped password encrypts.</source>
        <translation>パスワードが一度しか入力されておらず、打ち間違いかどうかを確かめられません。「パスワード」タブの2つ目の欄に、もう一度入力してください。打ち間違えたパスワードで暗号化したものは、誰も開けません。</translation>
    </message>
    <message>
        <source>The password and its repetition differ: one of them is mistyped. Type both again on the Password tab: nobody can open what a mistyped password encrypts.</source>
        <translation>パスワードと再入力したものが一致しません。どちらかが打ち間違いです。「パスワード」タブで両方を入力し直してください。打ち間違えたパスワードで暗号化したものは、誰も開けません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is listed more than once, and is backed up as often, one after the other, into one archive.</source>
        <translation>「%1」がリストに複数回あるため、その回数だけ順に、1つのアーカイブへバックアップされます。</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>it is neither a file nor a folder</source>
        <translation>ファイルでもフォルダーでもありません</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失敗しました: %1</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>キャンセルしました。</translation>
    </message>
    <message>
        <source>Backed up %1 of %2 (%3).</source>
        <translation>%2個中%1個をバックアップしました（%3）。</translation>
    </message>
    <message>
        <source>Not found: %1.</source>
        <translation>見つかりません: %1。</translation>
    </message>
    <message>
        <source>Left out, as they are neither files nor folders: %1.</source>
        <translation>ファイルでもフォルダーでもないため、対象外にしました: %1。</translation>
    </message>
    <message>
        <source>The former archive is called &quot;%1&quot; now: %2.</source>
        <translation>以前のアーカイブの名前は、現在「%1」です: %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left and is not encrypted: run the backup again, or remove it.</source>
        <translation>暗号化されていない「%1」が残っています。もう一度バックアップするか、削除してください。</translation>
    </message>
    <message>
        <source>The profile has no folders. Add those that are to be backed up.</source>
        <translation>プロファイルにフォルダーがありません。バックアップするフォルダーを追加してください。</translation>
    </message>
    <message>
        <source>The destination that is shown is not this profile&apos;s own. Choose it again.</source>
        <translation>表示されている保存先は、このプロファイルのものではありません。選び直してください。</translation>
    </message>
    <message>
        <source>No destination is chosen. Choose the folder that the archives go to.</source>
        <translation>保存先が選択されていません。アーカイブを保存するフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; does not exist or is no folder. Connect its disk, or choose another one.</source>
        <translation>保存先「%1」が存在しないか、フォルダーではありません。ディスクを接続するか、別の保存先を選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size of volumes, the files that an archive is split into. Choose a size such as 700 MB, or switch the splitting off.</source>
        <translation>「%1」は分割ファイル（アーカイブを分けて保存するファイル）のサイズとして使えません。700 MBのようなサイズを選ぶか、分割をオフにしてください。</translation>
    </message>
    <message>
        <source>The archive of &quot;%1&quot; would have a name that is too long for a file. Rename it, or back up the folder that it lies in.</source>
        <translation>「%1」のアーカイブは、名前が長すぎてファイルにできません。名前を変更するか、1つ上のフォルダーをバックアップしてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; would both need the file &quot;%3&quot; in the destination, and one archive would replace the other. Rename one of them, or back it up by a profile of its own.</source>
        <translation>「%1」と「%2」は、どちらも保存先に「%3」というファイルが必要なため、一方のアーカイブが他方を置き換えてしまいます。どちらかの名前を変更するか、別のプロファイルでバックアップしてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is on the list, and its name is needed for the archive of &quot;%2&quot;. Choose another destination, or rename it.</source>
        <translation>「%1」はリストにありますが、その名前が「%2」のアーカイブに必要です。別の保存先を選ぶか、名前を変更してください。</translation>
    </message>
    <message>
        <source>No password was fetched from the keychain. Fetch it: without a password nothing is backed up.</source>
        <translation>キーリングからパスワードが取得されていません。取得してください。パスワードなしでは何もバックアップされません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there, and is left out. Connect its disk, or remove it from the list.</source>
        <translation>「%1」が見つからないため、対象外になります。ディスクを接続するか、リストから外してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, and is left out.</source>
        <translation>「%1」は%2のため、対象外になります。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link, and only the link itself would be backed up, nothing that it leads to. Put a slash behind it, or add the folder that it leads to.</source>
        <translation>「%1」はリンクです。バックアップされるのはリンクだけで、リンク先のものは含まれません。末尾にスラッシュを付けるか、リンク先のフォルダーを追加してください。</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; lies in &quot;%2&quot;, so each archive would hold the ones before it. Choose another destination.</source>
        <translation>保存先「%1」は「%2」の中にあるため、アーカイブにそれまでのアーカイブが含まれてしまいます。別の保存先を選んでください。</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ほか %1 個</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be given another name while the new archive is made.</source>
        <translation>新しいアーカイブを作る間、「%1」の名前を変えておくことができません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be given another name while the new archive is made: %2.</source>
        <translation>新しいアーカイブを作る間、「%1」の名前を変えておくことができません: %2。</translation>
    </message>
    <message>
        <source>Something is missing in the settings file, and without it files would be lost: %1. Repair the file, or move it away: the next start makes a new one.</source>
        <translation>設定ファイルに必要な項目がありません: %1。このままではファイルが失われるおそれがあります。設定ファイルを修復するか、別の場所に移してください。移すと、次回の起動時に新しいファイルが作成されます。</translation>
    </message>
</context>
<context>
    <name>extract</name>
    <message>
        <source>&quot;%1&quot; is no archive</source>
        <translation>「%1」はアーカイブではありません</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot; in &quot;%2&quot;, so nothing was brought back. The archive&apos;s paths look like &quot;%3&quot;.</source>
        <translation>「%2」に「%1」がないため、何も復元しませんでした。アーカイブ内のパスは「%3」のような形です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not extracted: its path has &quot;part&quot; and, after that, a number as later volumes have it. Move or rename it, and add it again.</source>
        <translation>「%1」は展開されません。パスに「part」があり、その後に2番目以降の分割ファイルと同じ形の番号があります。移動するか名前を変更して、もう一度追加してください。</translation>
    </message>
    <message>
        <source>The first volume is missing: &quot;%1&quot; is volume %2 of its set. Add the first one, &quot;%3.part1.rar&quot; or &quot;…part01.rar&quot;.</source>
        <translation>最初の分割ファイルがありません。「%1」は、そのセットの%2番目です。最初のファイル「%3.part1.rar」か「…part01.rar」を追加してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be the path of anything in an archive. Name a file or a folder as the archive has it, such as &quot;home/anna/letter&quot;.</source>
        <translation>「%1」は、アーカイブ内のどのパスにもなりません。「home/anna/letter」のように、アーカイブ内にあるとおりのファイル名かフォルダー名を指定してください。</translation>
    </message>
    <message>
        <source>%1 Extract again; if it happens again, the machine may be short of memory.</source>
        <translation>%1 もう一度展開してください。再び起こる場合は、コンピューターのメモリが不足している可能性があります。</translation>
    </message>
    <message>
        <source>The disk of &quot;%1&quot; is full. Make room, or choose a folder on another disk, and extract again.</source>
        <translation>「%1」のディスクに空きがありません。空きを作るか、別のディスクのフォルダーを選んで、もう一度展開してください。</translation>
    </message>
    <message>
        <source>Nothing may be written into &quot;%1&quot;. Choose another folder, or change its permissions.</source>
        <translation>「%1」には書き込めません。別のフォルダーを選ぶか、アクセス権を変更してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while. Rename it, or extract into another folder.</source>
        <translation>「%1」はフォルダーですが、一時的に同じ名前のファイルが必要です。名前を変更するか、別のフォルダーに展開してください。</translation>
    </message>
    <message>
        <source>A volume is missing: %1. Put all volumes of the set into one folder and extract again.</source>
        <translation>分割ファイルが足りません: %1。セットの分割ファイルをすべて1つのフォルダーに入れて、もう一度展開してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the first volume of its set. Add the first one; the others are found by it.</source>
        <translation>「%1」は、セットの最初の分割ファイルではありません。最初のファイルを追加してください。残りは自動的に見つかります。</translation>
    </message>
    <message>
        <source>The volumes of &quot;%1&quot; do not belong together: %2. Put those of one set into one folder.</source>
        <translation>「%1」の分割ファイルは、同じセットのものではありません: %2。1つのセットの分割ファイルを、1つのフォルダーに入れてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is cut short: a part of it was lost when it was copied, or the copy is not finished. Copy it again: %2.</source>
        <translation>「%1」は途中で切れています。コピー中に一部が失われたか、コピーが終わっていません。コピーし直してください: %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged: %2. Fetch another copy of it.</source>
        <translation>「%1」は破損しています: %2。別のコピーを入手してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no archive, whatever its name: %2.</source>
        <translation>「%1」は、名前に反してアーカイブではありません: %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be unpacked: %2.</source>
        <translation>「%1」を展開できません: %2。</translation>
    </message>
    <message>
        <source>The private key can&apos;t be read. Choose the one that belongs to the certificate, on the Password tab.</source>
        <translation>秘密鍵を読み取れません。「パスワード」タブで、証明書と対になる秘密鍵を選んでください。</translation>
    </message>
    <message>
        <source>The certificate can&apos;t be read. Choose the one that the archive was encrypted for, on the Password tab.</source>
        <translation>証明書を読み取れません。「パスワード」タブで、アーカイブの暗号化に使った証明書を選んでください。</translation>
    </message>
    <message>
        <source>What is in &quot;%1&quot; is damaged, or was not encrypted for a certificate: %2. Fetch another copy, or choose another decryption method.</source>
        <translation>「%1」の内容が破損しているか、証明書で暗号化されたものではありません: %2。別のコピーを入手するか、別の暗号化方式を選んでください。</translation>
    </message>
    <message>
        <source>The private key or the certificate is not usable: %1. A key with a pass phrase can&apos;t be used.</source>
        <translation>秘密鍵または証明書を使用できません: %1。パスフレーズ付きの鍵は使用できません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be decrypted with this private key and certificate: %2. Choose the pair that it was encrypted for, on the Password tab.</source>
        <translation>「%1」は、この秘密鍵と証明書では復号できません: %2。「パスワード」タブで、暗号化に使った証明書と、対になる秘密鍵を選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a link where the encrypted file should be. It was not made by a backup: don&apos;t trust it.</source>
        <translation>「%1」では、暗号化ファイルがあるはずの場所にリンクがあります。バックアップで作られたものではないので、信用しないでください。</translation>
    </message>
    <message>
        <source>The name of &quot;%1&quot; does not tell how it was encrypted. Choose the decryption method, and extract again.</source>
        <translation>「%1」の名前からは、暗号化方式がわかりません。暗号化方式を選んで、もう一度展開してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be decrypted with the method that is chosen; its name tells another one. Choose the automatic method.</source>
        <translation>「%1」は、選択した暗号化方式では復号できません。名前は別の方式を示しています。「自動」を選んでください。</translation>
    </message>
    <message>
        <source>The password is wrong: &quot;%1&quot; can&apos;t be decrypted with it. Type the one that the archive was made with.</source>
        <translation>パスワードが違います。このパスワードでは「%1」を復号できません。アーカイブを作ったときのパスワードを入力してください。</translation>
    </message>
    <message>
        <source>What is in &quot;%1&quot; was not encrypted by a password, or it is damaged. Choose another decryption method, or fetch another copy.</source>
        <translation>「%1」の内容はパスワードで暗号化されたものではないか、破損しています。別の暗号化方式を選ぶか、別のコピーを入手してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be decrypted: %2.</source>
        <translation>「%1」を復号できません: %2。</translation>
    </message>
    <message>
        <source>The password is probably wrong: what &quot;%1&quot; was decrypted to is no archive. Type the one that the archive was made with.</source>
        <translation>おそらくパスワードが違います。「%1」を復号したものはアーカイブではありません。アーカイブを作ったときのパスワードを入力してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds names that lead out of &quot;%2&quot;: %3. They were left out; don&apos;t trust the archive.</source>
        <translation>「%1」には「%2」の外に出る名前が含まれています: %3。それらは展開しませんでした。このアーカイブは信用しないでください。</translation>
    </message>
    <message>
        <source>A name in &quot;%1&quot; is taken by something else in &quot;%2&quot;: %3. Rename that, or extract into an empty folder.</source>
        <translation>「%1」に含まれる名前が、「%2」ではすでに別のものに使われています: %3。その名前を変更するか、空のフォルダーに展開してください。</translation>
    </message>
    <message>
        <source>The archiver left out a link of &quot;%1&quot;: %2. It makes none that lead to an absolute path or out of the folder. Quillorent&apos;s own archiver does: choose it on the Tools tab, and extract again.</source>
        <translation>アーカイバーが「%1」のリンクを展開しませんでした: %2。このアーカイバーは、絶対パスやフォルダーの外へのリンクを作りません。Quillorent付属のアーカイバーなら作れます。「ツール」タブで選択して、もう一度展開してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the archives, and its name is needed for what comes out of &quot;%2&quot;. Extract into another folder.</source>
        <translation>「%1」はアーカイブの1つですが、その名前が「%2」から取り出すものに必要です。別のフォルダーに展開してください。</translation>
    </message>
    <message>
        <source>The set of &quot;%1&quot; seems incomplete or mixed: %2. Put all its volumes, and no others, into one folder.</source>
        <translation>「%1」のセットは、足りないものがあるか、別のものが混ざっているようです: %2。その分割ファイルだけを、すべて1つのフォルダーに入れてください。</translation>
    </message>
    <message>
        <source>No private key is chosen. Without it nothing that was encrypted for a certificate can be decrypted.</source>
        <translation>秘密鍵が選択されていません。秘密鍵がないと、証明書で暗号化されたものは復号できません。</translation>
    </message>
    <message>
        <source>The private key &quot;%1&quot; can&apos;t be read.</source>
        <translation>秘密鍵「%1」を読み取れません。</translation>
    </message>
    <message>
        <source>No certificate is chosen. Choose the one that the archives were encrypted for.</source>
        <translation>証明書が選択されていません。アーカイブの暗号化に使った証明書を選んでください。</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; can&apos;t be read.</source>
        <translation>証明書「%1」を読み取れません。</translation>
    </message>
    <message>
        <source>The name of &quot;%1&quot; does not tell how it was encrypted. Choose the method, unless the name of what is in it tells.</source>
        <translation>「%1」の名前からは、暗号化方式がわかりません。中のファイルの名前からわかる場合を除き、方式を選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was encrypted by a password, and a certificate is chosen. Choose a password on the Password tab.</source>
        <translation>「%1」はパスワードで暗号化されていますが、証明書が選択されています。「パスワード」タブでパスワードを選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while. Rename it.</source>
        <translation>「%1」はフォルダーですが、一時的に同じ名前のファイルが必要です。名前を変更してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there, and its name is needed for a while. It will get another name, which begins with &quot;kept&quot;, and stay.</source>
        <translation>「%1」がすでにありますが、この名前が一時的に必要です。「kept」で始まる別の名前に変えて残します。</translation>
    </message>
    <message>
        <source>Two archives need the name &quot;%1&quot; for a while. They are extracted one after the other; what the second would replace goes into a folder of its own.</source>
        <translation>2つのアーカイブが、一時的に同じ名前「%1」を必要とします。1つずつ展開し、2つ目で置き換わるはずのファイルは専用のフォルダーに入れます。</translation>
    </message>
    <message>
        <source>Single files are looked for in one archive at a time. Choose one archive, or of a set its first volume.</source>
        <translation>個別のファイルは、一度に1つのアーカイブからしか探せません。アーカイブを1つだけ選んでください。分割されたものは、最初の分割ファイルを選んでください。</translation>
    </message>
    <message>
        <source>The extraction folder &quot;%1&quot; does not exist or is no folder. Connect its disk, or choose another one.</source>
        <translation>展開先フォルダー「%1」が存在しないか、フォルダーではありません。ディスクを接続するか、別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there any more, or can&apos;t be read.</source>
        <translation>「%1」はすでになくなったか、読み取れません。</translation>
    </message>
    <message>
        <source>The extraction folder &quot;%1&quot; is not empty. Files of the same name are replaced.</source>
        <translation>展開先フォルダー「%1」は空ではありません。同じ名前のファイルは置き換えられます。</translation>
    </message>
    <message>
        <source>its name is that of a later volume</source>
        <translation>名前が2番目以降の分割ファイルのものです</translation>
    </message>
    <message numerus="yes">
        <source>Looked into the archive: it holds %n file(s) and folder(s).</source>
        <translation>
            <numerusform>アーカイブの内容を調べました。ファイルとフォルダーが合わせて%n個あります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Brought back what was chosen, %n file(s) or folder(s), to &quot;%1&quot;.</source>
        <translation>
            <numerusform>選択したファイルとフォルダー%n個を「%1」に復元しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Extracted %1 of %2 into &quot;%3&quot;.</source>
        <translation>%2個中%1個を「%3」に展開しました。</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失敗しました: %1</translation>
    </message>
    <message>
        <source>Cancelled. What was chosen may have been brought back in part.</source>
        <translation>キャンセルしました。選択したものの一部が復元されている可能性があります。</translation>
    </message>
    <message>
        <source>Cancelled. Files left in the extraction folder may be incomplete.</source>
        <translation>キャンセルしました。展開先フォルダーに残ったファイルは不完全な可能性があります。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has what would have replaced files of another archive.</source>
        <translation>別のアーカイブのファイルを置き換えるはずだったものは「%1」にあります。</translation>
    </message>
    <message>
        <source>Not extracted, as they look like later volumes: %1.</source>
        <translation>2番目以降の分割ファイルと見なし、展開しませんでした: %1。</translation>
    </message>
    <message>
        <source>volume %1 is there twice, so some are leftovers of another backup</source>
        <translation>%1番目の分割ファイルが2つあり、別のバックアップの残りが混ざっています</translation>
    </message>
    <message>
        <source>volume %1 is missing</source>
        <translation>%1番目の分割ファイルがありません</translation>
    </message>
    <message>
        <source>all volumes but the first are missing</source>
        <translation>最初の分割ファイルしかありません</translation>
    </message>
    <message>
        <source>volume %1 is shorter than the one before it. Either it was cut short, or it is the last one, and those from volume %2 on are leftovers of a larger backup</source>
        <translation>%1番目の分割ファイルが、その前のものより小さくなっています。途中で切れているか、それが最後のファイルで、%2番目以降は以前のもっと大きなバックアップの残りです</translation>
    </message>
    <message>
        <source>volume %1 is as large as those before it, so it may not be the last</source>
        <translation>%1番目の分割ファイルがそれまでのものと同じ大きさのため、最後ではない可能性があります</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not hold the file &quot;%2&quot; that its name promises. Give the archive back the name that it had; if it never had another one, no backup has made it.</source>
        <translation>「%1」には、その名前から予想されるファイル「%2」がありません。アーカイブを元の名前に戻してください。名前を変えたことがなければ、バックアップで作られたものではありません。</translation>
    </message>
    <message>
        <source>What &quot;%1&quot; was decrypted to is no archive. The private key is wrong, or no backup has made the archive.</source>
        <translation>「%1」を復号したものはアーカイブではありません。秘密鍵が違うか、バックアップで作られたアーカイブではありません。</translation>
    </message>
    <message>
        <source>Cancelled. Nothing of yours was changed.</source>
        <translation>キャンセルしました。あなたのファイルは変更されていません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link</source>
        <translation>「%1」はリンクです</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of &quot;%1&quot; can&apos;t be made in &quot;%2&quot;, beginning with this: %3. All others are there. Extract into a folder on another disk to have these, too.</source>
        <translation>
            <numerusform>「%1」の %n 個のファイルを「%2」に作成できません。最初のもの: %3。ほかはすべてあります。これらも取り出すには、別のディスクのフォルダーに展開してください。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>extraction</name>
    <message>
        <source>No archives are chosen. Add those that are to be extracted.</source>
        <translation>アーカイブが選択されていません。展開するアーカイブを追加してください。</translation>
    </message>
    <message>
        <source>No password is given. Type one on the Password tab; without a password nothing is extracted.</source>
        <translation>パスワードがありません。「パスワード」タブで入力してください。パスワードなしでは何も展開されません。</translation>
    </message>
    <message>
        <source>No extraction folder is chosen. Choose the folder that the contents go to.</source>
        <translation>展開先フォルダーが選択されていません。内容の展開先を選んでください。</translation>
    </message>
    <message>
        <source>The extraction folder that is shown is not this profile&apos;s own. Choose it again.</source>
        <translation>表示されている展開先フォルダーは、このプロファイルのものではありません。選び直してください。</translation>
    </message>
    <message>
        <source>No certificate is chosen. Choose one on the Password tab.</source>
        <translation>証明書が選択されていません。「パスワード」タブで選んでください。</translation>
    </message>
    <message>
        <source>No archive is chosen. Add the one that has the file.</source>
        <translation>アーカイブが選択されていません。目的のファイルが入っているアーカイブを追加してください。</translation>
    </message>
    <message>
        <source>Add archives</source>
        <translation>アーカイブを追加</translation>
    </message>
    <message>
        <source>There is no archive among them: archives end in &quot;.rar&quot;.</source>
        <translation>この中にアーカイブはありません。アーカイブの名前の末尾は &quot;.rar&quot; です。</translation>
    </message>
    <message>
        <source>Choose where the archives are extracted to</source>
        <translation>アーカイブの展開先を選択</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be made. Choose another one.</source>
        <translation>フォルダー「%1」を作成できません。別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>Testing the archives…</source>
        <translation>アーカイブをテストしています…</translation>
    </message>
    <message>
        <source>Testing &quot;%1&quot;…</source>
        <translation>「%1」をテストしています…</translation>
    </message>
    <message>
        <source>Restoring…</source>
        <translation>復元しています…</translation>
    </message>
    <message>
        <source>Looking into &quot;%1&quot;…</source>
        <translation>「%1」の中を調べています…</translation>
    </message>
</context>
<context>
    <name>files</name>
    <message>
        <source>a pipe, a socket or a device</source>
        <translation>パイプ、ソケット、またはデバイス</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link or a file in the destination, where a folder is needed</source>
        <translation>フォルダーが必要な場所に、リンクまたはファイル「%1」があります</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>キャンセルされました</translation>
    </message>
    <message>
        <source>There may not be enough room: about %1 are needed, and %2 are free in &quot;%3&quot;.</source>
        <translation>空き容量が足りない可能性があります。「%3」には約%1が必要ですが、空きは%2です。</translation>
    </message>
    <message>
        <source>Nothing may be written into &quot;%1&quot;: %2. Choose another folder, or change its permissions.</source>
        <translation>「%1」には書き込めません: %2。別のフォルダーを選ぶか、アクセス権を変更してください。</translation>
    </message>
    <message>
        <source>a file</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>a link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder</source>
        <translation>「%1」はフォルダーです</translation>
    </message>
</context>
<context>
    <name>folders</name>
    <message>
        <source>The password is that of the account &quot;%1&quot;, and the account that is chosen is &quot;%2&quot;. Fetch its password on the Password tab, or choose the other account again.</source>
        <translation>このパスワードはアカウント「%1」のものですが、選択されているアカウントは「%2」です。「パスワード」タブでそのパスワードを取得するか、元のアカウントを選び直してください。</translation>
    </message>
    <message>
        <source>Add folders and files</source>
        <translation>フォルダーとファイルを追加</translation>
    </message>
    <message>
        <source>Choose the destination of the archives</source>
        <translation>アーカイブの保存先を選択</translation>
    </message>
</context>
<context>
    <name>headless</name>
    <message>
        <source>The profile encrypts for a certificate; a password does not go with it.</source>
        <translation>このプロファイルは証明書で暗号化するため、パスワードは併用できません。</translation>
    </message>
    <message>
        <source>There is no archive &quot;%1&quot;.</source>
        <translation>アーカイブ「%1」がありません。</translation>
    </message>
    <message>
        <source>The extraction folder &quot;%1&quot; is not empty. Files of the same name would be replaced.</source>
        <translation>展開先フォルダー「%1」は空ではありません。同じ名前のファイルは置き換えられます。</translation>
    </message>
    <message>
        <source>There are no profiles.</source>
        <translation>プロファイルがありません。</translation>
    </message>
    <message>
        <source>There is no profile &quot;%1&quot;; there are: %2.</source>
        <translation>プロファイル「%1」はありません。使用できるもの: %2。</translation>
    </message>
    <message>
        <source>Try &quot;quillorent-run --help&quot;.</source>
        <translation>&quot;quillorent-run --help&quot; をお試しください。</translation>
    </message>
    <message>
        <source>Runs what Quillorent&apos;s window runs, without a window.

Commands:
  backup [PROFILE]                  back up the folders of a profile
  extract [PROFILE] -- ARCHIVE...   turn archives back into folders; of a set the first volume,
                                    or a folder of archives
  list [PROFILE] -- ARCHIVE         tell what an archive holds: bytes, time, path, separated by
                                    tabs; needs the password, room and time as extract does
  sync [PROFILE]                    synchronise the files and folders of a profile
  tools                             list the external tools: name, path, ok or not
  profiles                          list the profiles; * marks the one opened at start-up

Exit status: 0 done, 1 failed or cancelled, 2 could not start, or was not to
go on (see --yes), 64 wrong usage.</source>
        <translation>Quillorentのウィンドウで行うことを、ウィンドウなしで実行します。

コマンド:
  backup [PROFILE]                  プロファイルのフォルダーをバックアップする
  extract [PROFILE] -- ARCHIVE...   アーカイブをフォルダーに戻す。分割されたものは
                                    最初のファイルを、またはアーカイブのあるフォルダーを指定する
  list [PROFILE] -- ARCHIVE         アーカイブの内容（バイト数、日時、パス）をタブ区切りで
                                    表示する。extractと同じパスワード、空き容量、時間が必要
  sync [PROFILE]                    プロファイルのファイルとフォルダーを同期する
  tools                             外部ツールの名前、パス、正常かどうかを一覧表示する
  profiles                          プロファイルを一覧表示する（* は起動時に開くもの）

終了ステータス: 0 完了、1 失敗またはキャンセル、2 開始できなかった、または続行が
許可されていなかった（--yes を参照）、64 使い方の誤り。</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>このヘルプを表示する。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>バージョンを表示する。</translation>
    </message>
    <message>
        <source>Take the password from the first line of FILE; - is standard input.</source>
        <translation>パスワードをFILEの1行目から読み取る。- は標準入力。</translation>
    </message>
    <message>
        <source>Bring back PATH alone, a file or folder of the one archive, as list tells it; may be given several times. Nothing is replaced: what is there gets a name that begins with &quot;kept-&quot;.</source>
        <translation>1つのアーカイブの中の、listが表示するとおりのファイルまたはフォルダーPATHだけを復元する。複数回指定できる。何も置き換えず、すでにあるものは「kept-」で始まる名前に変えて残す。</translation>
    </message>
    <message>
        <source>Extract into FOLDER instead of the profile&apos;s extraction folder.</source>
        <translation>プロファイルの展開先フォルダーではなくFOLDERに展開する。</translation>
    </message>
    <message>
        <source>Decrypt by METHOD: aes, bf, 3d, smime, or auto, by the archive&apos;s name.</source>
        <translation>METHODで復号する: aes、bf、3d、smime、またはauto（アーカイブの名前から判断）。</translation>
    </message>
    <message>
        <source>Go on in spite of what is found before the run: archives that will be replaced, too little room, files that will be deleted, and the like. What would lose files is refused all the same.</source>
        <translation>実行前に見つかった問題（置き換えられるアーカイブ、容量不足、削除されるファイルなど）があっても続行する。ファイルが失われる操作は、それでも拒否される。</translation>
    </message>
    <message>
        <source>Print the run&apos;s record on standard output when it has ended.</source>
        <translation>処理が終わったら、その記録を標準出力に出力する。</translation>
    </message>
    <message>
        <source>Show progress even where no terminal is.</source>
        <translation>端末でない場合も進行状況を表示する。</translation>
    </message>
    <message>
        <source>backup, extract, list, sync, tools or profiles.</source>
        <translation>backup、extract、list、sync、tools、profilesのいずれか。</translation>
    </message>
    <message>
        <source>The profile; without it the one that the window would open.</source>
        <translation>プロファイル。省略すると、ウィンドウで開かれるもの。</translation>
    </message>
    <message>
        <source>A command is missing: backup, extract, list, sync, tools or profiles.</source>
        <translation>コマンドがありません: backup、extract、list、sync、tools、profilesのいずれかを指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command; there are backup, extract, list, sync, tools and profiles.</source>
        <translation>「%1」というコマンドはありません。使用できるのは、backup、extract、list、sync、tools、profilesです。</translation>
    </message>
    <message>
        <source>Archives are missing: name them behind &quot;--&quot;.</source>
        <translation>アーカイブがありません。&quot;--&quot; の後に指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one word too many.</source>
        <translation>「%1」は余分な引数です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with &quot;%2&quot;.</source>
        <translation>「%1」は「%2」と一緒に使えません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no method; there are %2.</source>
        <translation>「%1」という方式はありません。使用できるもの: %2。</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>The first line of %1 is longer than any password can be. Give a file whose first line is the password alone.</source>
        <translation>%1の1行目が、パスワードとしてありえない長さです。1行目がパスワードだけのファイルを指定してください。</translation>
    </message>
    <message>
        <source>The password in %1 is not UTF-8 text. Save the file as UTF-8.</source>
        <translation>%1のパスワードはUTF-8のテキストではありません。ファイルをUTF-8で保存してください。</translation>
    </message>
    <message>
        <source>what was typed</source>
        <translation>入力された内容</translation>
    </message>
    <message>
        <source>The first line of %1 is empty. Write the password there.</source>
        <translation>%1の1行目が空です。そこにパスワードを書いてください。</translation>
    </message>
    <message>
        <source>Can&apos;t read the password from %1: %2. Give another file.</source>
        <translation>%1からパスワードを読み取れません: %2。別のファイルを指定してください。</translation>
    </message>
    <message>
        <source>The password was not typed the same way twice. Nothing was done.</source>
        <translation>2回入力したパスワードが一致しませんでした。何も行われていません。</translation>
    </message>
    <message>
        <source>Say --yes to go on all the same.</source>
        <translation>それでも続行するには、--yes を付けてください。</translation>
    </message>
    <message>
        <source>No password was typed. Nothing was done.</source>
        <translation>パスワードが入力されませんでした。何も行われていません。</translation>
    </message>
    <message>
        <source>Password for the archives: </source>
        <translation>アーカイブのパスワード: </translation>
    </message>
    <message>
        <source>The same password again: </source>
        <translation>同じパスワードをもう一度: </translation>
    </message>
    <message>
        <source>The two passwords are not the same. Type both again.</source>
        <translation>2 つのパスワードが一致しません。両方とも入力し直してください。</translation>
    </message>
    <message>
        <source>Do the same again, or remove them.</source>
        <translation>同じ操作をもう一度行うか、それらを削除してください。</translation>
    </message>
</context>
<context>
    <name>keychain</name>
    <message>
        <source>The keychain did what it was asked to.</source>
        <translation>キーリングへの要求は完了しました。</translation>
    </message>
    <message>
        <source>The keychain holds no such password.</source>
        <translation>キーリングにそのパスワードはありません。</translation>
    </message>
    <message>
        <source>The keychain holds a password of that name already. It stays as it is: remove it with your desktop&apos;s password program first, or choose another account name.</source>
        <translation>同じ名前のパスワードがすでにキーリングにあり、そのまま残ります。先にデスクトップのパスワード管理プログラムで削除するか、別のアカウント名を選んでください。</translation>
    </message>
    <message>
        <source>No keychain service runs in this session. Start one (any Secret Service will do), or type the password.</source>
        <translation>このセッションではキーリングのサービスが動作していません。起動する（Secret Service対応のものなら何でもかまいません）か、パスワードを入力してください。</translation>
    </message>
    <message>
        <source>The keychain service has no default keychain. Create one with your desktop&apos;s password program.</source>
        <translation>キーリングのサービスに既定のキーリングがありません。デスクトップのパスワード管理プログラムで作成してください。</translation>
    </message>
    <message>
        <source>The keychain is locked. Unlock it and try again.</source>
        <translation>キーリングがロックされています。ロックを解除して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The keychain is still locked: its password was not given, or it could not be asked for. Try again, or unlock it with your desktop&apos;s password program.</source>
        <translation>キーリングはロックされたままです。そのパスワードが入力されなかったか、尋ねることができませんでした。もう一度試すか、デスクトップのパスワード管理プログラムでロックを解除してください。</translation>
    </message>
    <message>
        <source>The keychain service refused. Look at your desktop&apos;s password program for the reason.</source>
        <translation>キーリングのサービスに拒否されました。デスクトップのパスワード管理プログラムで理由を確認してください。</translation>
    </message>
    <message>
        <source>The keychain service does not answer. Try again later, or restart it; whether it stored something shows when it answers again.</source>
        <translation>キーリングのサービスが応答しません。後でもう一度試すか、サービスを再起動してください。何か保存されたかどうかは、応答が戻ればわかります。</translation>
    </message>
    <message>
        <source>The keychain was not waited for any longer.</source>
        <translation>キーリングの応答を待つのをやめました。</translation>
    </message>
    <message>
        <source>That password is not in the keychain.</source>
        <translation>そのパスワードはキーリングにありません。</translation>
    </message>
    <message>
        <source>A password of this kind does not have that attribute.</source>
        <translation>この種類のパスワードには、その属性はありません。</translation>
    </message>
    <message>
        <source>The keychain can&apos;t hold that name: it is missing, or is no proper text.</source>
        <translation>キーリングではその名前を使えません。空であるか、正しいテキストではありません。</translation>
    </message>
</context>
<context>
    <name>keys</name>
    <message>
        <source>(no subject)</source>
        <translation>（名前なし）</translation>
    </message>
    <message>
        <source>%1%2 – valid from %3 to %4</source>
        <translation>%1%2 – 有効期間は%3から%4まで</translation>
    </message>
    <message>
        <source>This certificate is not valid before %1. Check the computer&apos;s clock, or choose another one.</source>
        <translation>この証明書は、%1より前は有効ではありません。コンピューターの時計を確認するか、別の証明書を選んでください。</translation>
    </message>
    <message>
        <source>This certificate has expired on %1. What it encrypted still opens with its private key; for new archives choose one that is valid.</source>
        <translation>この証明書の有効期限は%1に切れています。これで暗号化したものは、対になる秘密鍵で引き続き開けます。新しいアーカイブには、有効な証明書を選んでください。</translation>
    </message>
    <message>
        <source>This certificate expires today.</source>
        <translation>この証明書の有効期限は今日です。</translation>
    </message>
    <message>
        <source>This certificate expires tomorrow.</source>
        <translation>この証明書の有効期限は明日です。</translation>
    </message>
    <message numerus="yes">
        <source>This certificate expires in %n days, on %1.</source>
        <translation>
            <numerusform>この証明書の有効期限は%n日後の%1です。</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no name</source>
        <translation>名前がありません</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>No file was chosen.</source>
        <translation>ファイルが選択されませんでした。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read: %2.</source>
        <translation>「%1」を読み取れません: %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty.</source>
        <translation>「%1」は空です。</translation>
    </message>
    <message>
        <source>

OpenSSL says: </source>
        <translation>

OpenSSLのメッセージ: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; looks like a certificate, but can&apos;t be read as one. It may be damaged.</source>
        <translation>「%1」は証明書のようですが、証明書として読み取れません。破損している可能性があります。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a private key, not a certificate. Choose the certificate that belongs to it here, and this file as the private key.</source>
        <translation>「%1」に入っているのは、証明書ではなく秘密鍵です。ここでは対になる証明書を選び、このファイルは秘密鍵として選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a PKCS#12 container. Only PEM, the text form, is accepted. Take the certificate out with:

openssl pkcs12 -in FILE -clcerts -nokeys -out certificate.pem</source>
        <translation>「%1」はPKCS#12形式です。使用できるのはテキスト形式のPEMだけです。次のコマンドで証明書を取り出してください:

openssl pkcs12 -in FILE -clcerts -nokeys -out certificate.pem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not PEM but binary (DER). Only PEM, the text form, is accepted. Convert it with:

openssl x509 -inform DER -in FILE -out certificate.pem</source>
        <translation>「%1」はPEMではなく、バイナリ形式（DER）です。使用できるのはテキスト形式のPEMだけです。次のコマンドで変換してください:

openssl x509 -inform DER -in FILE -out certificate.pem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no PEM certificate: such a file has a line &quot;-----BEGIN CERTIFICATE-----&quot;.</source>
        <translation>「%1」はPEM形式の証明書ではありません。PEM形式のファイルには &quot;-----BEGIN CERTIFICATE-----&quot; という行があります。</translation>
    </message>
    <message>
        <source>The private key in &quot;%1&quot; is encrypted with a pass phrase, which the program can&apos;t give to OpenSSL. Make a copy without one, and keep it where nobody else can read it:

openssl rsa -in FILE -out key.pem</source>
        <translation>「%1」の秘密鍵はパスフレーズで暗号化されていますが、このプログラムはパスフレーズをOpenSSLに渡せません。パスフレーズなしのコピーを作り、ほかの人が読めない場所に置いてください:

openssl rsa -in FILE -out key.pem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a certificate, not a private key. Choose the private key that belongs to the certificate.</source>
        <translation>「%1」に入っているのは、秘密鍵ではなく証明書です。証明書と対になる秘密鍵を選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a PKCS#12 container. Take the private key out with:

openssl pkcs12 -in FILE -nocerts -nodes -out key.pem</source>
        <translation>「%1」はPKCS#12形式です。次のコマンドで秘密鍵を取り出してください:

openssl pkcs12 -in FILE -nocerts -nodes -out key.pem</translation>
    </message>
    <message>
        <source>The private key in &quot;%1&quot; is not an RSA key. Only RSA keys, with RSA certificates, can be used.</source>
        <translation>「%1」の秘密鍵はRSA鍵ではありません。使用できるのは、RSAの証明書とRSA鍵だけです。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no private key that can be read. It must be an RSA key in PEM, the text form.</source>
        <translation>「%1」には読み取れる秘密鍵がありません。テキスト形式であるPEMのRSA鍵が必要です。</translation>
    </message>
    <message>
        <source>The private key in &quot;%1&quot; does not belong to the certificate &quot;%2&quot;. Choose the key that the certificate was made with; no other one opens what the certificate encrypts.</source>
        <translation>「%1」の秘密鍵は、証明書「%2」と対になるものではありません。証明書を作ったときの鍵を選んでください。証明書で暗号化したものは、ほかの鍵では開けません。</translation>
    </message>
    <message>
        <source>No certificate is chosen yet. Choose it first: a private key is accepted only with the certificate that it belongs to.</source>
        <translation>証明書がまだ選択されていません。秘密鍵は、対になる証明書と一緒でないと使用できません。先に証明書を選んでください。</translation>
    </message>
    <message>
        <source>The certificate itself can&apos;t be used any more. </source>
        <translation>証明書自体が使用できなくなっています。 </translation>
    </message>
    <message>
        <source>No password is given. Type one on the Password tab; without a password nothing is backed up.</source>
        <translation>パスワードがありません。「パスワード」タブで入力してください。パスワードなしでは何もバックアップされません。</translation>
    </message>
    <message>
        <source>The password holds a zero byte (is its file perhaps UTF-16?), and all behind it would be lost. Use a password of ordinary characters, in UTF-8.</source>
        <translation>パスワードに値が0のバイトが含まれているため（ファイルがUTF-16かもしれません）、それより後が失われます。UTF-8の通常の文字だけのパスワードを使ってください。</translation>
    </message>
    <message>
        <source>The password holds a line break, and all behind it would be lost. Use one of a single line.</source>
        <translation>パスワードに改行が含まれているため、それより後が失われます。1行だけのパスワードを使ってください。</translation>
    </message>
    <message>
        <source>The password is longer than %1 bytes, and would be cut. Use a shorter one.</source>
        <translation>パスワードが%1バイトを超えているため、途中で切れてしまいます。もっと短いパスワードを使ってください。</translation>
    </message>
    <message>
        <source>No certificate is chosen. Choose one on the Password tab.</source>
        <translation>証明書が選択されていません。「パスワード」タブで選んでください。</translation>
    </message>
    <message>
        <source>The key of the certificate &quot;%1&quot; has %2 bits; less than %3 can be broken.</source>
        <translation>証明書「%1」の鍵は%2ビットです。%3ビット未満は破られるおそれがあります。</translation>
    </message>
    <message>
        <source>%1, %2 bits</source>
        <translation>%1、%2 ビット</translation>
    </message>
    <message>
        <source>unknown kind</source>
        <translation>不明な種類</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; is not there, or can&apos;t be read. Choose another one on the Password tab.</source>
        <translation>証明書「%1」が見つからないか、読み取れません。「パスワード」タブで別の証明書を選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is chosen as the certificate, but it is a private key. Choose the certificate that belongs to it on the Password tab.</source>
        <translation>証明書として選ばれている「%1」は秘密鍵です。「パスワード」タブで、対になる証明書を選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no certificate in the form that is needed here, which is PEM, a text file. Choose another one on the Password tab.</source>
        <translation>「%1」は、ここで必要な形式（テキストファイルであるPEM）の証明書ではありません。「パスワード」タブで別の証明書を選んでください。</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; has a key of another kind than RSA, and only RSA keys can be used here. Choose another one on the Password tab.</source>
        <translation>証明書「%1」の鍵はRSAではありません。ここで使用できるのはRSA鍵だけです。「パスワード」タブで別の証明書を選んでください。</translation>
    </message>
</context>
<context>
    <name>outlets</name>
    <message>
        <source>Wait...</source>
        <translation>お待ちください...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>passwords</name>
    <message>
        <source>Nothing that is encrypted for this certificate can be opened without its private key: make sure that you have it, and a copy in a safe place.</source>
        <translation>この証明書で暗号化したものは、対になる秘密鍵がないと開けません。秘密鍵があり、そのコピーが安全な場所にあることを確認してください。</translation>
    </message>
    <message>
        <source>No private key is chosen. </source>
        <translation>秘密鍵が選択されていません。 </translation>
    </message>
    <message>
        <source>The private key is not where it was. </source>
        <translation>秘密鍵が元の場所にありません。 </translation>
    </message>
    <message>
        <source>Choose a certificate</source>
        <translation>証明書を選択</translation>
    </message>
    <message>
        <source>Choose the private key</source>
        <translation>秘密鍵を選択</translation>
    </message>
    <message>
        <source>It is no text, in UTF-8. Another program stored it: choose another account.</source>
        <translation>UTF-8のテキストではありません。別のプログラムが保存したものです。別のアカウントを選んでください。</translation>
    </message>
    <message>
        <source>The password of &quot;%1&quot; was fetched from the keychain.</source>
        <translation>「%1」のパスワードをキーリングから取得しました。</translation>
    </message>
    <message>
        <source>The keychain holds no password of &quot;%1&quot;. Check the account name; or type the password and store it.</source>
        <translation>キーリングに「%1」のパスワードはありません。アカウント名を確認するか、パスワードを入力して保存してください。</translation>
    </message>
    <message>
        <source>What the keychain holds of &quot;%1&quot; is of no use. </source>
        <translation>キーリングにある「%1」のパスワードは使用できません。 </translation>
    </message>
    <message>
        <source>Nothing was stored. </source>
        <translation>何も保存されませんでした。 </translation>
    </message>
    <message>
        <source>The password was stored in the keychain for &quot;%1&quot;.</source>
        <translation>「%1」のパスワードをキーリングに保存しました。</translation>
    </message>
    <message>
        <source>The keychain holds a password of &quot;%1&quot; already, and it stays as it is. Choose another account name, or remove the old one in your desktop&apos;s password program first.</source>
        <translation>「%1」のパスワードがすでにキーリングにあり、そのまま残ります。別のアカウント名を選ぶか、先にデスクトップのパスワード管理プログラムで古いものを削除してください。</translation>
    </message>
    <message>
        <source>The keychain is unlocked.</source>
        <translation>キーリングのロックが解除されました。</translation>
    </message>
    <message>
        <source>Asking the keychain…</source>
        <translation>キーリングに問い合わせています…</translation>
    </message>
</context>
<context>
    <name>plist</name>
    <message>
        <source>declarations within the document are not supported</source>
        <translation>文書内の宣言には対応していません</translation>
    </message>
    <message>
        <source>it holds a tag of more than %1 characters</source>
        <translation>%1文字を超えるタグが含まれています</translation>
    </message>
    <message>
        <source>%1: it can&apos;t be written: %2</source>
        <translation>%1: 書き込めません: %2</translation>
    </message>
    <message>
        <source>its links lead in a circle</source>
        <translation>リンクが循環しています</translation>
    </message>
    <message>
        <source>the root element is &lt;%1&gt;, not &lt;plist&gt;</source>
        <translation>ルート要素が&lt;plist&gt;ではなく&lt;%1&gt;です</translation>
    </message>
    <message>
        <source>the list is empty</source>
        <translation>リストが空です</translation>
    </message>
    <message>
        <source>the root is &lt;%1&gt;, not a dictionary</source>
        <translation>ルートが辞書ではなく&lt;%1&gt;です</translation>
    </message>
    <message>
        <source>something follows the root dictionary</source>
        <translation>ルートの辞書の後に何かがあります</translation>
    </message>
    <message>
        <source>there is text between the elements</source>
        <translation>要素の間にテキストがあります</translation>
    </message>
    <message>
        <source>entities are not supported</source>
        <translation>実体参照には対応していません</translation>
    </message>
    <message>
        <source>its encoding is %1, not UTF-8</source>
        <translation>文字コードがUTF-8ではなく%1です</translation>
    </message>
    <message>
        <source>the document type is not that of a property list</source>
        <translation>文書型がプロパティリストのものではありません</translation>
    </message>
    <message>
        <source>the attribute %1 is unknown</source>
        <translation>属性%1は不明です</translation>
    </message>
    <message>
        <source>version %1 of the format is unknown</source>
        <translation>形式のバージョン%1は不明です</translation>
    </message>
    <message>
        <source>the key %1 is there twice</source>
        <translation>キー%1が2つあります</translation>
    </message>
    <message>
        <source>the key %1 has no value</source>
        <translation>キー%1に値がありません</translation>
    </message>
    <message>
        <source>&lt;%1&gt; stands where a key is expected</source>
        <translation>キーがあるはずの場所に&lt;%1&gt;があります</translation>
    </message>
    <message>
        <source>it is nested deeper than %1 levels</source>
        <translation>%1段を超える入れ子になっています</translation>
    </message>
    <message>
        <source>the element &lt;%1&gt; is unknown</source>
        <translation>要素&lt;%1&gt;は不明です</translation>
    </message>
    <message>
        <source>“%1” is not an integer</source>
        <translation>「%1」は整数ではありません</translation>
    </message>
    <message>
        <source>the integer %1 does not fit into 64 bits</source>
        <translation>整数%1は64ビットに収まりません</translation>
    </message>
    <message>
        <source>“%1” is not a real number</source>
        <translation>「%1」は実数ではありません</translation>
    </message>
    <message>
        <source>the data is not Base64</source>
        <translation>データがBase64ではありません</translation>
    </message>
    <message>
        <source>“%1” is not a date like 2001-12-31T23:59:59Z</source>
        <translation>「%1」は 2001-12-31T23:59:59Z のような日時ではありません</translation>
    </message>
    <message>
        <source>there is text in &lt;true&gt; or &lt;false&gt;</source>
        <translation>&lt;true&gt;または&lt;false&gt;の中にテキストがあります</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>そのファイルはありません</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>%1 MiBを超えています</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>it is a binary property list; only XML ones can be read</source>
        <translation>バイナリ形式のプロパティリストです。読み取れるのはXML形式だけです</translation>
    </message>
    <message>
        <source>%1: it is not UTF-8</source>
        <translation>%1: UTF-8ではありません</translation>
    </message>
    <message>
        <source>it can&apos;t be put into XML</source>
        <translation>XMLにできません</translation>
    </message>
    <message>
        <source>it would be larger than %1 MiB</source>
        <translation>%1 MiBを超えてしまいます</translation>
    </message>
    <message>
        <source>there is nothing to write</source>
        <translation>書き込むものがありません</translation>
    </message>
    <message>
        <source>it has a character that such a file can&apos;t hold (%1)</source>
        <translation>このようなファイルでは使用できない文字（%1）を含んでいます</translation>
    </message>
    <message>
        <source>the value under “%2” is nested deeper than %1 levels</source>
        <translation>「%2」の値が%1段を超える入れ子になっています</translation>
    </message>
    <message>
        <source>the value under “%1” is a date that the file can&apos;t hold</source>
        <translation>「%1」の値が、ファイルに記録できない日時です</translation>
    </message>
    <message>
        <source>the value under “%2” has a character that the file can&apos;t hold (%1)</source>
        <translation>「%2」の値が、ファイルでは使用できない文字（%1）を含んでいます</translation>
    </message>
</context>
<context>
    <name>profiles</name>
    <message>
        <source>A profile needs a name, and none was typed.</source>
        <translation>プロファイルには名前が必要ですが、入力されていません。</translation>
    </message>
    <message>
        <source>There is a profile &quot;%1&quot; already. Choose another name.</source>
        <translation>プロファイル「%1」はすでにあります。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>There can be no profiles, for their file can&apos;t be read:
%1
Repair it, or move it away, and start the program again.</source>
        <translation>プロファイルのファイルを読み取れないため、プロファイルを使用できません:
%1
修復するか、別の場所に移して、プログラムを起動し直してください。</translation>
    </message>
    <message>
        <source>No copy could be saved either:
%1</source>
        <translation>コピーも保存できませんでした:
%1</translation>
    </message>
    <message>
        <source>Choose a folder for the copy</source>
        <translation>コピーの保存先フォルダーを選択</translation>
    </message>
    <message>
        <source>Another window or program has changed the file of the %1 since it was read here, and both of you have changed %2.

Whichever you choose, the other one is kept beside the file. What only one of you has changed is saved in any case.</source>
        <translation>ここで読み込んだ後に、別のウィンドウまたはプログラムが%1のファイルを変更しました。両方で変更されたもの: %2。

どちらを選んでも、もう一方の内容は、そのファイルと同じ場所に残ります。一方だけで変更されたものは、どちらの場合も保存されます。</translation>
    </message>
    <message>
        <source>The %1 can&apos;t be saved, for their file could not be read:
%2

Repair it, or move it away, and start the program again.</source>
        <translation>ファイルを読み取れなかったため、%1を保存できません:
%2

修復するか、別の場所に移して、プログラムを起動し直してください。</translation>
    </message>
    <message>
        <source>Another window or program has changed %1: that is taken over.</source>
        <translation>別のウィンドウまたはプログラムが%1を変更しました。その変更を取り込みました。</translation>
    </message>
    <message>
        <source>The %1 could not be saved:
%2

What you changed is kept only as long as the program runs. Make room, or make the folder writable, and save again.</source>
        <translation>%1を保存できませんでした:
%2

変更した内容は、プログラムの実行中しか保持されません。空きを作るか、フォルダーに書き込めるようにして、もう一度保存してください。</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>runs</name>
    <message>
        <source>the program was ended in the middle of it</source>
        <translation>途中でプログラムが終了しました</translation>
    </message>
    <message>
        <source>The program was ended before the run was.</source>
        <translation>処理が終わる前にプログラムが終了しました。</translation>
    </message>
    <message>
        <source>no other name is free for it</source>
        <translation>ほかに使える名前がありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while. Rename it.</source>
        <translation>「%1」はフォルダーですが、一時的に同じ名前のファイルが必要です。名前を変更してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way and can&apos;t be given another name: %2.</source>
        <translation>「%1」が妨げになっていますが、名前を変更できません: %2。</translation>
    </message>
    <message>
        <source>Something puts %1 under the name &quot;%2&quot; again and again. Choose a folder that nobody else writes to.</source>
        <translation>「%2」という名前で%1が何度も作られています。ほかの誰も書き込まないフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been replaced by %2 of somebody else&apos;s. Choose a folder that nobody else writes to.</source>
        <translation>「%1」が、ほかの誰かによって%2に置き換えられました。ほかの誰も書き込まないフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be made: %2</source>
        <translation>「%1」を作成できません: %2</translation>
    </message>
    <message>
        <source>%1: the tool ended with status %2 and did not say why.</source>
        <translation>%1: ツールがステータス%2で終了し、理由は示されませんでした。</translation>
    </message>
    <message>
        <source>%1: the tool said nothing, and did not make &quot;%2&quot;.</source>
        <translation>%1: ツールは何も報告せず、「%2」を作成しませんでした。</translation>
    </message>
    <message>
        <source>Another run is writing into &quot;%1&quot;, or its tools still are. Wait until it has ended.</source>
        <translation>別の処理かそのツールが、「%1」に書き込んでいます。終わるまでお待ちください。</translation>
    </message>
    <message>
        <source>Collecting</source>
        <translation>収集中</translation>
    </message>
    <message>
        <source>Encrypting</source>
        <translation>暗号化中</translation>
    </message>
    <message>
        <source>Packing</source>
        <translation>アーカイブ中</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>仕上げ中</translation>
    </message>
    <message>
        <source>Testing</source>
        <translation>テスト中</translation>
    </message>
    <message>
        <source>Unpacking</source>
        <translation>展開中</translation>
    </message>
    <message>
        <source>Decrypting</source>
        <translation>復号中</translation>
    </message>
    <message>
        <source>Restoring</source>
        <translation>復元中</translation>
    </message>
    <message>
        <source>Putting in place</source>
        <translation>配置中</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>コピー中</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>比較中</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>残り数秒</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>残り約%1秒</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>残り約%1分</translation>
    </message>
    <message>
        <source>About %1 h left</source>
        <translation>残り約%1時間</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>対象外</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was in the way and is called &quot;%2&quot; now.</source>
        <translation>「%1」が妨げになっていたため、名前を「%2」に変えました。</translation>
    </message>
    <message numerus="yes">
        <source>%n more were in the way, and their names begin with &quot;kept-&quot; now.</source>
        <translation>
            <numerusform>ほかに%n個が妨げになっていたため、「kept-」で始まる名前に変えました。</numerusform>
        </translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; can&apos;t be made</source>
        <translation>フォルダー「%1」を作成できません</translation>
    </message>
    <message>
        <source>It can&apos;t be written down what this run does: %1. If it is interrupted, nobody could tell what it leaves from files of your own.</source>
        <translation>この処理の内容を記録しておけません: %1。中断された場合に残るものを、あなたのファイルと区別できなくなります。</translation>
    </message>
    <message>
        <source>The OpenSSL program that is chosen on the Tools tab makes something else of a password than these archives need, so it can&apos;t open them. Choose Quillorent&apos;s own there; the password may be right.</source>
        <translation>「ツール」タブで選ばれているOpenSSLは、パスワードの扱い方がこのアーカイブに必要なものと異なるため、アーカイブを開けません。そこでQuillorent付属のものを選んでください。パスワードは正しいかもしれません。</translation>
    </message>
</context>
<context>
    <name>settings</name>
    <message>
        <source>“%1” may not be written, nor moved out of the way: what is changed can&apos;t be saved.</source>
        <translation>「%1」には書き込めず、移動することもできないため、変更した内容を保存できません。</translation>
    </message>
    <message>
        <source>“%1” may not be written by this user. It is kept as “%2”, and a new one with the program&apos;s own settings has taken its place.</source>
        <translation>このユーザーには「%1」に書き込む権限がありません。これを「%2」として残し、プログラムの標準設定の新しいファイルに替えました。</translation>
    </message>
    <message>
        <source>“%1” could not be read when it was saved over. What it held is kept as “%2”.</source>
        <translation>上書き保存のときに「%1」を読み取れませんでした。元の内容は「%2」に残してあります。</translation>
    </message>
    <message>
        <source>What others had changed in “%1” is kept as “%2”.</source>
        <translation>ほかで変更された「%1」の内容は、「%2」に残してあります。</translation>
    </message>
    <message>
        <source>What you had changed in “%1” is kept as “%2”.</source>
        <translation>あなたが変更した「%1」の内容は、「%2」に残してあります。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be made</source>
        <translation>フォルダー「%1」を作成できません</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be read, and no copy of it can be kept: so it is not saved over</source>
        <translation>「%1」を読み取れず、コピーを残しておくこともできないため、上書き保存しません</translation>
    </message>
    <message>
        <source>Of “%1” no copy can be kept: so it is not saved over</source>
        <translation>「%1」のコピーを残せないため、上書き保存しません</translation>
    </message>
</context>
<context>
    <name>sync</name>
    <message>
        <source>The list of what is to be synchronised can&apos;t be written to &quot;%1&quot;: %2.</source>
        <translation>同期するもののリストを「%1」に書き込めません: %2。</translation>
    </message>
    <message>
        <source>deleted at the destination</source>
        <translation>同期先から削除</translation>
    </message>
    <message>
        <source>replaced there, removed here</source>
        <translation>同期先で置き換え、こちらから削除</translation>
    </message>
    <message>
        <source>moved there</source>
        <translation>同期先へ移動</translation>
    </message>
    <message>
        <source>there already, removed here</source>
        <translation>同期先に既存、こちらから削除</translation>
    </message>
    <message>
        <source>folder made</source>
        <translation>フォルダーを作成</translation>
    </message>
    <message>
        <source>date or permissions set</source>
        <translation>日付またはアクセス権を設定</translation>
    </message>
    <message>
        <source>Nothing would be copied or deleted.</source>
        <translation>コピーまたは削除されるものはありません。</translation>
    </message>
    <message>
        <source>%1. %2 would be copied.</source>
        <translation>%1。コピーされる量は%2です。</translation>
    </message>
    <message>
        <source>Delete %1 there, remove %2 here?</source>
        <translation>同期先で%1を削除し、こちらで%2を削除しますか？</translation>
    </message>
    <message>
        <source>Delete %1 there?</source>
        <translation>同期先で%1を削除しますか？</translation>
    </message>
    <message>
        <source>Remove %1 here?</source>
        <translation>こちらで%1を削除しますか？</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; shows another key than before; someone may be in its place. Ask who runs it before you connect again.</source>
        <translation>サーバー「%1」の鍵が以前と違います。別の誰かが成りすましている可能性があります。再び接続する前に、サーバーの管理者に確認してください。</translation>
    </message>
    <message>
        <source>ssh does not know the server &quot;%1&quot; yet. Connect to it once in a terminal (ssh %1), compare the key that it shows, and try again.</source>
        <translation>sshはサーバー「%1」をまだ知りません。端末で一度接続し（ssh %1）、表示される鍵を照合してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>There is no server of the name &quot;%1&quot;, or this computer is offline. Check the name.</source>
        <translation>「%1」という名前のサーバーがないか、このコンピューターがネットワークに接続されていません。名前を確認してください。</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; refuses the connection. Check that its ssh service runs; a port other than 22 belongs into ~/.ssh/config.</source>
        <translation>サーバー「%1」に接続を拒否されました。サーバーでsshサービスが動作しているか確認してください。22以外のポートは ~/.ssh/config に書いてください。</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; can&apos;t be reached. Check the network, and that the server is on.</source>
        <translation>サーバー「%1」に接続できません。ネットワークと、サーバーの電源が入っていることを確認してください。</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not let you in, since it was sent an empty user name. Fill in the user: then ssh takes the one from ~/.ssh/config, or else your own.</source>
        <translation>空のユーザー名が送られたため、サーバー「%1」にログインできませんでした。ユーザー欄に入力してください。入力すると、sshは ~/.ssh/config の名前を使い、そこになければあなた自身の名前を使います。</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not let you in. Nobody can type a password here: log in by a key that ssh finds without a question (see ssh-agent, ~/.ssh/config).</source>
        <translation>サーバー「%1」にログインできませんでした。ここではパスワードを入力できないため、sshが確認なしで使える鍵でログインしてください（ssh-agent、~/.ssh/config を参照）。</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; has no rsync. Install it there.</source>
        <translation>サーバー「%1」にrsyncがありません。サーバーにインストールしてください。</translation>
    </message>
    <message>
        <source>rsync does not understand its arguments. Check &quot;rsyncparams&quot; and &quot;rsyncexcludes&quot; in the settings file: both must be there, and each be one option.</source>
        <translation>rsyncが引数を解釈できません。設定ファイルの &quot;rsyncparams&quot; と &quot;rsyncexcludes&quot; を確認してください。両方が必要で、それぞれが1つのオプションでなければなりません。</translation>
    </message>
    <message>
        <source>The server took the port for the beginning of the folder&apos;s path. Leave the port empty, and put it into ~/.ssh/config.</source>
        <translation>サーバーは、ポートをフォルダーのパスの先頭と見なしました。ポートは空のままにして、~/.ssh/config に書いてください。</translation>
    </message>
    <message>
        <source>The folder in which &quot;%2&quot; is to be made does not exist. Connect its disk, or choose another destination.</source>
        <translation>「%2」を作成する場所のフォルダーが存在しません。ディスクを接続するか、別の同期先を選んでください。</translation>
    </message>
    <message>
        <source>The destination is full. Make room there and run it again: what is there is not copied twice.</source>
        <translation>同期先に空きがありません。空きを作って、もう一度実行してください。すでにあるものは再びコピーされません。</translation>
    </message>
    <message>
        <source>A file is larger than the destination can take. Choose another disk, or leave the file out.</source>
        <translation>同期先に置けない大きさのファイルがあります。別のディスクを選ぶか、そのファイルを外してください。</translation>
    </message>
    <message>
        <source>The destination &quot;%2&quot; can only be read. Choose another one.</source>
        <translation>同期先「%2」は読み取り専用です。別の同期先を選んでください。</translation>
    </message>
    <message>
        <source>You may not read some of the files; they are not copied.</source>
        <translation>読み取る権限のないファイルがあります。それらはコピーされません。</translation>
    </message>
    <message>
        <source>You may not write to the destination &quot;%2&quot;. Choose another one, or have its permissions changed.</source>
        <translation>同期先「%2」に書き込む権限がありません。別の同期先を選ぶか、アクセス権を変更してもらってください。</translation>
    </message>
    <message>
        <source>An entry of the list is not where it was; it is not copied. Remove it from the list, or bring it back.</source>
        <translation>リストの項目が元の場所にないため、コピーされません。リストから外すか、元の場所に戻してください。</translation>
    </message>
    <message>
        <source>Files disappeared while they were to be copied. All others are copied; run it again where that matters.</source>
        <translation>コピーする前になくなったファイルがあります。ほかはすべてコピーされました。必要なら、もう一度実行してください。</translation>
    </message>
    <message>
        <source>A folder that is gone here could not be deleted at the destination: it holds files that rsync leaves alone.</source>
        <translation>こちらでなくなったフォルダーを、同期先から削除できませんでした。rsyncが対象にしないファイルが入っています。</translation>
    </message>
    <message>
        <source>The destination can&apos;t keep all owners, dates or permissions of the files.</source>
        <translation>同期先では、ファイルの所有者、日付、アクセス権の一部を保持できません。</translation>
    </message>
    <message>
        <source>The connection to &quot;%1&quot; ended early. Run it again: what is there is not copied twice.</source>
        <translation>「%1」との接続が途中で切れました。もう一度実行してください。すでにあるものは再びコピーされません。</translation>
    </message>
    <message>
        <source>ssh has noted the server&apos;s key, and what it said counts as a failure. Run it once more.</source>
        <translation>sshがサーバーの鍵を登録しましたが、そのメッセージが失敗として扱われました。もう一度実行してください。</translation>
    </message>
    <message>
        <source> Nothing was deleted at the destination.</source>
        <translation> 同期先では何も削除されませんでした。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty, and everything in its copy would be deleted. Is its disk connected?</source>
        <translation>「%1」は空のため、コピー先の内容がすべて削除されます。ディスクは接続されていますか？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not lie under the common folder &quot;%2&quot; as the list is written, and will not be found. Synchronise it from a profile of its own.</source>
        <translation>リストの書き方では「%1」が共通のフォルダー「%2」の下にないため、見つかりません。別のプロファイルで同期してください。</translation>
    </message>
    <message>
        <source>The destination lies inside &quot;%1&quot;, so that each run copies the copies of the last one. Choose another destination.</source>
        <translation>同期先が「%1」の中にあるため、実行するたびに前回のコピーまでコピーされます。別の同期先を選んでください。</translation>
    </message>
    <message>
        <source>Copies what is new or was changed here. Files that are newer at the destination stay as they are.</source>
        <translation>こちらで新しくなったものや変更されたものをコピーします。同期先にあるより新しいファイルは、そのまま残ります。</translation>
    </message>
    <message>
        <source>Copies every file whose content differs, also over a newer one at the destination. All files are read on both sides, which takes long.</source>
        <translation>内容が異なるファイルをすべてコピーします。同期先のほうが新しくても上書きします。両側のすべてのファイルを読み取るため、時間がかかります。</translation>
    </message>
    <message>
        <source>MOVES the files: they are removed here once they are at the destination. And deletes at the destination, inside the listed folders, what is not here: a second run deletes there what the first one moved there, and then it is nowhere.</source>
        <translation>ファイルを移動します（コピーではありません）。同期先に届くと、こちらからは削除されます。さらに、リストにあるフォルダーの中では、こちらにないものが同期先から削除されます。2回目の実行では、1回目に移動したものが同期先から削除され、どこにもなくなります。</translation>
    </message>
    <message>
        <source>Deletes at the destination, inside the listed folders, everything that is not here any more.</source>
        <translation>リストにあるフォルダーの中では、こちらになくなったものがすべて同期先から削除されます。</translation>
    </message>
    <message>
        <source>MOVES the files: they are removed here once they are at the destination. Folders stay, empty.</source>
        <translation>ファイルを移動します（コピーではありません）。同期先に届くと、こちらからは削除されます。フォルダーは空のまま残ります。</translation>
    </message>
    <message>
        <source>Deletes nothing, neither here nor there.</source>
        <translation>こちらでも同期先でも、何も削除しません。</translation>
    </message>
    <message>
        <source>Without a user the server is sent an empty name, which it refuses: fill one in. Which name is used is for ~/.ssh/config to say; otherwise it is your own.</source>
        <translation>ユーザーが空だとサーバーに空の名前が送られ、拒否されます。入力してください。どの名前が使われるかは ~/.ssh/config で決まり、そこになければあなた自身の名前になります。</translation>
    </message>
    <message>
        <source>The port becomes the beginning of the folder&apos;s path on the server. Leave it empty, and put it into ~/.ssh/config.</source>
        <translation>ポートは、サーバー上のフォルダーのパスの先頭になってしまいます。空のままにして、~/.ssh/config に書いてください。</translation>
    </message>
    <message>
        <source>The folder must exist on the server: a single file would be stored under its name instead.</source>
        <translation>フォルダーがサーバーに存在している必要があります。存在しないと、1つだけのファイルは、そのフォルダーの名前のファイルとして保存されます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will not be found: its path holds that of the common folder &quot;%2&quot; in the wrong place. Synchronise it from a profile of its own.</source>
        <translation>「%1」は見つかりません。そのパスには、共通のフォルダー「%2」のパスが間違った位置に含まれています。別のプロファイルで同期してください。</translation>
    </message>
    <message>
        <source>The destination lies inside &quot;%1&quot;, so that each run copies the copies of the last one.</source>
        <translation>同期先が「%1」の中にあるため、実行するたびに前回のコピーまでコピーされます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no absolute path. Remove it from the list and add it again.</source>
        <translation>「%1」は絶対パスではありません。リストから外して、もう一度追加してください。</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; holds a line break, which rsync&apos;s list can&apos;t. Put the folder above it on the list instead.</source>
        <translation>パス「%1」に改行が含まれていますが、rsyncのリストでは改行を使えません。代わりに、1つ上のフォルダーをリストに入れてください。</translation>
    </message>
    <message>
        <source>No server is given. Type its name, or switch the remote destination off.</source>
        <translation>サーバーが指定されていません。名前を入力するか、「サーバー上」をオフにしてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no server&apos;s name.</source>
        <translation>「%1」はサーバーの名前として使えません。</translation>
    </message>
    <message>
        <source>The list is empty. Add the files and folders that are to be synchronised.</source>
        <translation>リストが空です。同期するファイルとフォルダーを追加してください。</translation>
    </message>
    <message>
        <source>No destination is chosen. Choose the folder that the files go to.</source>
        <translation>同期先が選択されていません。ファイルのコピー先となるフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is no absolute path. Choose the folder again.</source>
        <translation>同期先「%1」は絶対パスではありません。フォルダーを選び直してください。</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is a file. Choose a folder.</source>
        <translation>同期先「%1」はファイルです。フォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is the folder that the files lie in already. Choose another one.</source>
        <translation>同期先「%1」は、ファイルがすでにあるフォルダーそのものです。別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The destination folder &quot;%1&quot; can&apos;t be made. Choose one that you may write to.</source>
        <translation>同期先フォルダー「%1」を作成できません。書き込めるフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>Cancelled before it began.
</source>
        <translation>開始前にキャンセルされました。
</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>キャンセルしました。</translation>
    </message>
    <message>
        <source>rsync&apos;s message is not readable text.</source>
        <translation>rsyncのメッセージをテキストとして読み取れません。</translation>
    </message>
    <message>
        <source>It ended with status %1 and did not say why; not everything is copied. Run it again.</source>
        <translation>ステータス%1で終了し、理由は示されませんでした。コピーされていないものがあります。もう一度実行してください。</translation>
    </message>
    <message>
        <source>Preview cancelled.</source>
        <translation>プレビューをキャンセルしました。</translation>
    </message>
    <message>
        <source>Cancelled. What was copied stays; the next run goes on from there.</source>
        <translation>キャンセルしました。コピーされたものは残り、次回はその続きから始まります。</translation>
    </message>
    <message>
        <source>Failed. %1</source>
        <translation>失敗しました。%1</translation>
    </message>
    <message>
        <source>Synchronised %1 in %2.</source>
        <translation>%1を同期しました（所要時間: %2）。</translation>
    </message>
    <message>
        <source>replaced</source>
        <translation>置き換え</translation>
    </message>
    <message>
        <source>copied</source>
        <translation>コピー</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n 個のファイル</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n 項目</numerusform>
        </translation>
    </message>
    <message>
        <source>rsync, the program that copies, reported a problem; its own words follow.</source>
        <translation>コピーを行うプログラムrsyncが問題を報告しました。内容は次のとおりです。</translation>
    </message>
    <message>
        <source>Beside &quot;%1&quot; there is a name that differs in upper and lower case only. The destination may take both for one, so that only one of them arrives. Rename one of them.</source>
        <translation>「%1」のそばに、大文字と小文字だけが異なる名前があります。同期先では両方が同じ名前とみなされ、一方しか届かないおそれがあります。どちらかの名前を変更してください。</translation>
    </message>
</context>
<context>
    <name>synchronisation</name>
    <message>
        <source>Add folders and files to synchronise</source>
        <translation>同期するフォルダーとファイルを追加</translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation>同期元フォルダーを選択</translation>
    </message>
    <message>
        <source>Choose the destination of the synchronisation</source>
        <translation>同期先を選択</translation>
    </message>
    <message>
        <source>The profile deletes files, at the destination or here. The window&apos;s preview shows which.</source>
        <translation>このプロファイルは、同期先またはこちらのファイルを削除します。どのファイルかは、ウィンドウのプレビューで確認できます。</translation>
    </message>
    <message>
        <source>Comparing both sides…</source>
        <translation>両側を比較しています…</translation>
    </message>
    <message>
        <source>There is more to delete by now. </source>
        <translation>削除するものが、先ほどより増えています。 </translation>
    </message>
    <message>
        <source>Looking at both sides…</source>
        <translation>両側を調べています…</translation>
    </message>
    <message>
        <source>Synchronising…</source>
        <translation>同期しています…</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>時間: %1</translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>Choose a tool</source>
        <translation>ツールを選択</translation>
    </message>
    <message>
        <source>Can&apos;t start &quot;%1&quot;: a name or a password for it holds a zero byte.
</source>
        <translation>「%1」を起動できません: 渡す名前またはパスワードに、値が0のバイトが含まれています。
</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was ended by signal %2 (%3).
</source>
        <translation>「%1」は、シグナル%2（%3）で終了させられました。
</translation>
    </message>
    <message>
        <source>Can&apos;t start &quot;%1&quot;: %2. Choose the tool&apos;s path on the Tools tab.</source>
        <translation>「%1」を起動できません: %2。「ツール」タブでツールのパスを選択してください。</translation>
    </message>
    <message>
        <source>This OpenSSL can&apos;t be used by itself: it makes something else of a password than archives of this program need, and complains of it. Choose Quillorent&apos;s own &quot;openssl&quot;, which uses it.</source>
        <translation>このOpenSSLは、そのままでは使用できません。パスワードの扱い方が、このプログラムのアーカイブに必要なものと異なり、警告を出します。このOpenSSLを内部で使用する、Quillorent付属の「openssl」を選んでください。</translation>
    </message>
    <message>
        <source>the tool&apos;s message is not readable text</source>
        <translation>ツールのメッセージは読み取れるテキストではありません</translation>
    </message>
</context>
<context>
    <name>ui::ArchiveListModel</name>
    <message>
        <source>not found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>comes with the first volume of its set</source>
        <translation>セットの最初の分割ファイルと一緒に展開されます</translation>
    </message>
    <message>
        <source>not extracted: its path has &quot;part&quot; and a number, as later volumes have it</source>
        <translation>展開されません: パスに「part」と、2番目以降の分割ファイルと同じ形の番号があります</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>アーカイブ</translation>
    </message>
</context>
<context>
    <name>ui::ArchiveListView</name>
    <message>
        <source>Drop archives, or a folder of them, here, or press Add</source>
        <translation>ここにアーカイブまたはそのフォルダーをドロップするか、「追加」を押してください</translation>
    </message>
</context>
<context>
    <name>ui::BackupList</name>
    <message>
        <source>its first part is missing</source>
        <translation>最初のファイルがありません</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>不完全</translation>
    </message>
    <message>
        <source>Incomplete or mixed: %1.</source>
        <translation>足りないものがあるか、混ざっています: %1。</translation>
    </message>
    <message>
        <source>What was backed up</source>
        <translation>バックアップしたもの</translation>
    </message>
    <message>
        <source>When</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
</context>
<context>
    <name>ui::BackupOffer</name>
    <message>
        <source>Bac&amp;kups in &quot;%1&quot;: tick what you want back</source>
        <translation>「%1」のバックアップ: 復元するものにチェック(&amp;K)</translation>
    </message>
</context>
<context>
    <name>ui::BackupResult</name>
    <message>
        <source>1 folder</source>
        <translation>フォルダー1個</translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>フォルダー%n個</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>3 of 4 folders</comment>
        <translation>%2のうち%1個</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>48 GB in 11 min</comment>
        <translation>%2で%1</translation>
    </message>
    <message>
        <source>Backed up %1</source>
        <translation>%1にバックアップしました</translation>
    </message>
    <message>
        <source>Cancelled %1</source>
        <translation>%1にキャンセルしました</translation>
    </message>
    <message>
        <source>backed up by then: %1</source>
        <translation>その時点でのバックアップ済み: %1</translation>
    </message>
    <message>
        <source>The backup that began %1 was interrupted</source>
        <translation>%1に始めたバックアップは中断されました</translation>
    </message>
    <message>
        <source>Backed up %1, but not everything</source>
        <translation>%1にバックアップしましたが、全部ではありません</translation>
    </message>
    <message>
        <source>The backup failed %1</source>
        <translation>%1にバックアップが失敗しました</translation>
    </message>
    <message>
        <source>backed up: %1</source>
        <translation>バックアップ済み: %1</translation>
    </message>
    <message>
        <source>What failed: “%1” – %2</source>
        <translation>失敗したもの: 「%1」 – %2</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>対処方法: %1</translation>
    </message>
    <message>
        <source>What to do: back up again. The next backup first puts in order what this one left.</source>
        <translation>対処方法: もう一度バックアップしてください。次のバックアップでは、今回残ったものが最初に整理されます。</translation>
    </message>
    <message>
        <source>Left out: “%1” – %2. Connect its disk, or take it off the list.</source>
        <translation>対象外: 「%1」 – %2。ディスクを接続するか、リストから外してください。</translation>
    </message>
    <message>
        <source>What was left: &quot;%1&quot;, which is not encrypted</source>
        <translation>残ったもの: 「%1」（暗号化されていません）</translation>
    </message>
    <message>
        <source>What was left: &quot;%1&quot;</source>
        <translation>残ったもの: 「%1」</translation>
    </message>
    <message>
        <source>“%1” was in the way and is called “%2” now.</source>
        <translation>「%1」が妨げになっていたため、名前を「%2」に変えました。</translation>
    </message>
    <message>
        <source>What was left: nothing. Archives from earlier backups are as they were.</source>
        <translation>残ったもの: なし。以前のバックアップのアーカイブは元のままです。</translation>
    </message>
    <message>
        <source>What failed, what to do and what was left</source>
        <translation>失敗したもの、対処方法、残ったもの</translation>
    </message>
</context>
<context>
    <name>ui::CompressionHint</name>
    <message>
        <source>archives about %1 % smaller</source>
        <translation>アーカイブが約%1%小さくなります</translation>
    </message>
    <message>
        <source>gains next to nothing here</source>
        <translation>ここではほとんど小さくなりません</translation>
    </message>
</context>
<context>
    <name>ui::ContentsModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>変更日時</translation>
    </message>
</context>
<context>
    <name>ui::ContentsSheet</name>
    <message numerus="yes">
        <source>%n second(s)</source>
        <translation>
            <numerusform>%n秒</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n分</numerusform>
        </translation>
    </message>
    <message>
        <source>What &quot;%1&quot; holds</source>
        <translation>「%1」の内容</translation>
    </message>
    <message>
        <source>Nothing is chosen yet: tick files or folders.</source>
        <translation>まだ何も選択されていません。ファイルかフォルダーにチェックを入れてください。</translation>
    </message>
    <message>
        <source>Chosen: %1, %2. It takes about %3, as looking into the archive did: all of it has to be decrypted for that. Nothing of yours is replaced: a file that is there and differs gets a name that begins with &quot;kept-&quot;.</source>
        <translation>選択中: %1、%2。全体を復号する必要があるため、内容を調べたときと同じく約%3かかります。あなたのファイルは置き換えられません。内容の異なるファイルがすでにある場合、それは「kept-」で始まる名前に変わります。</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>ファイル%n個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ui::FirstSteps</name>
    <message>
        <source>Your first backup, in three steps</source>
        <translation>はじめてのバックアップ – 3つの手順</translation>
    </message>
    <message>
        <source>What is to be kept safe?</source>
        <translation>何を守りますか？</translation>
    </message>
    <message>
        <source>Choose the folders that you can&apos;t do without, or drop them here.</source>
        <translation>なくなると困るフォルダーを選ぶか、ここにドロップしてください。</translation>
    </message>
    <message>
        <source>Choose folders…</source>
        <translation>フォルダーを選択…</translation>
    </message>
    <message>
        <source>Where to?</source>
        <translation>どこに保存しますか？</translation>
    </message>
    <message>
        <source>Choose a folder on another disk: one that breaks or is stolen takes all with it.</source>
        <translation>別のディスクのフォルダーを選んでください。同じディスクでは、故障や盗難のときにすべて失われます。</translation>
    </message>
    <message>
        <source>Choose a place…</source>
        <translation>保存先を選択…</translation>
    </message>
    <message>
        <source>What locks it?</source>
        <translation>何で鍵をかけますか？</translation>
    </message>
    <message>
        <source>Think of a password. Without it nobody can open the backup, you neither: write it down in a safe place.</source>
        <translation>パスワードを決めてください。パスワードがないと、あなた自身を含め、誰もバックアップを開けません。安全な場所に書き留めておいてください。</translation>
    </message>
    <message>
        <source>Set a password…</source>
        <translation>パスワードを設定…</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Skip: %1</source>
        <translation>スキップ: %1</translation>
    </message>
</context>
<context>
    <name>ui::FolderListModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Last backed up</source>
        <translation>前回のバックアップ</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>neither file nor folder</source>
        <translation>ファイルでもフォルダーでもない</translation>
    </message>
    <message>
        <source>only a link</source>
        <translation>リンクのみ</translation>
    </message>
    <message>
        <source>holds the destination</source>
        <translation>保存先を含む</translation>
    </message>
    <message>
        <source>Neither a file nor a folder, and left out by a backup. Remove it.</source>
        <translation>ファイルでもフォルダーでもないため、バックアップの対象外になります。リストから外してください。</translation>
    </message>
    <message>
        <source>A link to another place: only the link itself would be backed up. Add the folder that it leads to.</source>
        <translation>別の場所へのリンクです。バックアップされるのはリンクだけです。リンク先のフォルダーを追加してください。</translation>
    </message>
    <message>
        <source>The archives go into this folder, so each would hold the ones before it. Choose another destination.</source>
        <translation>アーカイブがこのフォルダーの中に保存されるため、アーカイブにそれまでのアーカイブが含まれてしまいます。別の保存先を選んでください。</translation>
    </message>
    <message>
        <source>…</source>
        <comment>a size that is being measured</comment>
        <translation>…</translation>
    </message>
    <message>
        <source>never</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Not found, and left out. Connect its disk, or remove it.</source>
        <translation>見つからないため、対象外になります。ディスクを接続するか、リストから外してください。</translation>
    </message>
</context>
<context>
    <name>ui::FolderListView</name>
    <message>
        <source>Drop folders here, or press Add</source>
        <translation>ここにフォルダーをドロップするか、「追加」を押してください</translation>
    </message>
</context>
<context>
    <name>ui::FoldersPage</name>
    <message>
        <source>not a size</source>
        <translation>サイズではありません</translation>
    </message>
    <message>
        <source>700 MB – a CD</source>
        <translation>700 MB – CD</translation>
    </message>
    <message>
        <source>4.7 GB – a DVD</source>
        <translation>4.7 GB – DVD</translation>
    </message>
    <message>
        <source>25 GB – a Blu-ray disc</source>
        <translation>25 GB – Blu-rayディスク</translation>
    </message>
    <message>
        <source>None – one file an archive</source>
        <translation>なし – アーカイブを分割しない</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>空き容量 %1</translation>
    </message>
    <message>
        <source>Only %1 free, and a backup needs about %2 while it works</source>
        <translation>空き容量は%1だけで、バックアップ中は約%2が必要です</translation>
    </message>
    <message>
        <source>%1 free; a backup needs about %2 while it works</source>
        <translation>空き容量 %1。バックアップ中は約%2が必要です</translation>
    </message>
    <message>
        <source>%1 – it opens the archives that are there</source>
        <translation>%1 – 今あるアーカイブを開けます</translation>
    </message>
    <message>
        <source>%1 – it does not open the archives that are there</source>
        <translation>%1 – 今あるアーカイブを開けません</translation>
    </message>
    <message>
        <source>in files of %1</source>
        <translation>%1ごとに分割</translation>
    </message>
    <message>
        <source>one file a folder</source>
        <translation>フォルダーごとに1ファイル</translation>
    </message>
    <message>
        <source>made smaller</source>
        <translation>小さくする</translation>
    </message>
    <message>
        <source>dated like the newest file</source>
        <translation>日付は最新ファイルに合わせる</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between properties of the archives</comment>
        <translation>、 </translation>
    </message>
</context>
<context>
    <name>ui::HindranceList</name>
    <message>
        <source>Go to the list</source>
        <translation>リストへ移動</translation>
    </message>
    <message>
        <source>Choose the place</source>
        <translation>場所を選択</translation>
    </message>
    <message>
        <source>Go to the password</source>
        <translation>パスワードへ移動</translation>
    </message>
    <message>
        <source>Go to the certificate</source>
        <translation>証明書へ移動</translation>
    </message>
    <message>
        <source>Go to the size</source>
        <translation>サイズへ移動</translation>
    </message>
    <message>
        <source>Go to the tools</source>
        <translation>ツールへ移動</translation>
    </message>
    <message>
        <source>Still missing for a backup:</source>
        <translation>バックアップに足りないもの:</translation>
    </message>
</context>
<context>
    <name>ui::LevelBar</name>
    <message>
        <source>%1 of %2 tools are in order</source>
        <translation>%2個中%1個のツールが正常</translation>
    </message>
    <message>
        <source>No tools checked</source>
        <translation>ツールは未確認</translation>
    </message>
</context>
<context>
    <name>ui::PathListView</name>
    <message>
        <source>Let go to add to the list</source>
        <translation>放すとリストに追加されます</translation>
    </message>
</context>
<context>
    <name>ui::PreviewTableView</name>
    <message>
        <source>What happens</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
</context>
<context>
    <name>ui::ProgressFigures</name>
    <message>
        <source>What</source>
        <translation>対象</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>段階</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>時間: %1</translation>
    </message>
</context>
<context>
    <name>ui::RemovalUndo</name>
    <message>
        <source>Undo removing from the list</source>
        <translation>リストから外す操作を元に戻す</translation>
    </message>
    <message>
        <source>“%1” is off the list.</source>
        <translation>「%1」をリストから外しました。</translation>
    </message>
    <message numerus="yes">
        <source>%n entries are off the list.</source>
        <translation>
            <numerusform>%n個の項目をリストから外しました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ui::RunNotices</name>
    <message>
        <source>Files restored</source>
        <translation>ファイルを復元しました</translation>
    </message>
    <message>
        <source>Restoring failed</source>
        <translation>復元に失敗しました</translation>
    </message>
    <message>
        <source>Folders synchronised</source>
        <translation>フォルダーを同期しました</translation>
    </message>
    <message>
        <source>The synchronisation failed</source>
        <translation>同期に失敗しました</translation>
    </message>
    <message>
        <source>Backup finished</source>
        <translation>バックアップが完了しました</translation>
    </message>
    <message>
        <source>The backup failed</source>
        <translation>バックアップに失敗しました</translation>
    </message>
    <message>
        <source>Archive looked into</source>
        <translation>アーカイブの中身を確認しました</translation>
    </message>
    <message>
        <source>The archive can&apos;t be looked into</source>
        <translation>アーカイブの中身を確認できません</translation>
    </message>
</context>
<context>
    <name>ui::SizeEdit</name>
    <message>
        <source>%1 %2B</source>
        <translation>%1 %2B</translation>
    </message>
</context>
<context>
    <name>ui::StepperButtons</name>
    <message>
        <source>Larger</source>
        <translation>大きくする</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>小さくする</translation>
    </message>
</context>
<context>
    <name>ui::ToolTableModel</name>
    <message>
        <source>Program</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>makes and opens archives</source>
        <translation>アーカイブの作成と展開</translation>
    </message>
    <message>
        <source>encrypts and decrypts</source>
        <translation>暗号化と復号</translation>
    </message>
    <message>
        <source>copies what has changed</source>
        <translation>変更されたもののコピー</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>確認中…</translation>
    </message>
    <message>
        <source>right tool</source>
        <translation>正しいツール</translation>
    </message>
    <message>
        <source>not usable</source>
        <translation>使用不可</translation>
    </message>
    <message>
        <source>The file is missing, can&apos;t be run, or is another program.</source>
        <translation>ファイルがないか、実行できないか、別のプログラムです。</translation>
    </message>
</context>
<context>
    <name>ui::ToolTableView</name>
    <message>
        <source>Choose…</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Choose the file of %1</source>
        <translation>%1のファイルを選択</translation>
    </message>
</context>
<context>
    <name>ui::UnsavedChanges</name>
    <message>
        <source>All changes saved</source>
        <translation>すべての変更を保存済み</translation>
    </message>
    <message>
        <source>Changes are saved when you quit</source>
        <translation>変更は終了時に保存されます</translation>
    </message>
    <message>
        <source>Profiles and settings not saved yet</source>
        <translation>プロファイルと設定は未保存</translation>
    </message>
    <message>
        <source>Profiles not saved yet</source>
        <translation>プロファイルは未保存</translation>
    </message>
    <message>
        <source>Settings not saved yet</source>
        <translation>設定は未保存</translation>
    </message>
    <message>
        <source>Save changes?</source>
        <translation>変更を保存しますか？</translation>
    </message>
    <message>
        <source>There are changes that are not saved.</source>
        <translation>保存されていない変更があります。</translation>
    </message>
    <message>
        <source>Without saving they are lost when the program ends.</source>
        <translation>保存しないと、プログラムの終了時に失われます。</translation>
    </message>
</context>
<context>
    <name>updates</name>
    <message>
        <source>Version %1 is there. You have version %2.</source>
        <translation>バージョン%1が公開されています。お使いのバージョンは%2です。</translation>
    </message>
    <message>
        <source>it is no RSS feed</source>
        <translation>RSSフィードではありません</translation>
    </message>
</context>
</TS>
