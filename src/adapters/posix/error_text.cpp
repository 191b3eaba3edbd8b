#include "adapters/posix/error_text.h"

#include <cerrno>
#include <string>

namespace posix_adapter {

namespace {

struct Sentence {
    int error;
    TextView words;
};

constexpr Sentence kSentences[] = {
    {ENOENT, u"ファイルが見つかりません。"},
    {ENOTDIR, u"フォルダが見つかりません。"},
    {EACCES, u"アクセスが許可されていません。"},
    {EPERM, u"アクセスが許可されていません。"},
    {EROFS, u"書き込みが禁止されているディスクです。"},
    {ENOSPC, u"ディスクの空き領域が不足しています。"},
    {EDQUOT, u"ディスクの割り当て容量を超えました。"},
    {EFBIG, u"ファイルが大きすぎます。"},
    {EISDIR, u"フォルダはファイルとして扱えません。"},
    {ENAMETOOLONG, u"ファイル名が長すぎます。"},
    {ELOOP, u"シンボリックリンクが循環しています。"},
    {EMFILE, u"開いているファイルが多すぎます。"},
    {ENFILE, u"開いているファイルが多すぎます。"},
    {EIO, u"ディスクの読み書きに失敗しました。"},
    {ENOMEM, u"メモリが不足しています。"},
    {EBUSY, u"ファイルは使用中です。"},
    {ETXTBSY, u"ファイルは使用中です。"},
    {ENODEV, u"通常のファイルではありません。"},
    {EINVAL, u"ファイル名が正しくありません。"},
};

}  // namespace

Text ErrorText(int error) {
    for (const Sentence& sentence : kSentences) {
        if (sentence.error == error) {
            return Text(sentence.words);
        }
    }
    const std::string number = std::to_string(error);
    return u"ファイルの操作に失敗しました。（エラー番号 " + Text(number.begin(), number.end()) +
           u"）";
}

}  // namespace posix_adapter
